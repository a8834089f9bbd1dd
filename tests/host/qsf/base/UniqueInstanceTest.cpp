#include "qsf/base/UniqueInstance.h"
#include "qsf/base/Ids.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

struct Thing : qsf::UniqueInstanceTarget<Thing> {
  explicit Thing(int thingNumber) : number(thingNumber) {}
  int number;
};

TEST(UniqueInstance, FindsTheOneObjectWhileItLives) {
  qsf::UniqueInstance<Thing> thing;
  EXPECT_FALSE(thing);
  EXPECT_EQ(thing.get(), nullptr);
  {
    Thing object(3);
    ASSERT_TRUE(thing);
    EXPECT_EQ(thing->number, 3);
    EXPECT_EQ(&*thing, &object);
  }
  EXPECT_FALSE(thing);
}

TEST(UniqueInstance, TheNewestObjectIsFoundAndAnOlderOnesEndDoesNotHideIt) {
  auto older = std::make_unique<Thing>(1);
  Thing newer(2);
  older.reset();
  qsf::UniqueInstance<Thing> thing;
  ASSERT_TRUE(thing);
  EXPECT_EQ(thing->number, 2);
}

TEST(Ids, UninitialisedMeansAllBitsSet) {
  EXPECT_EQ(qsf::getUninitialized<std::uint64_t>(), 0xFFFFFFFFFFFFFFFFull);
  EXPECT_EQ(qsf::getUninitialized<std::uint32_t>(), 0xFFFFFFFFu);
  EXPECT_EQ(qsf::UNINITIALIZED_ID, qsf::getUninitialized<std::uint64_t>());
}

}
