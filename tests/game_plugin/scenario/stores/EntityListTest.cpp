#include "game_plugin/scenario/stores/EntityList.h"

#include "tests/game_plugin/scenario/AllocationCounter.h"

#include <gtest/gtest.h>

using script::EntityList;

namespace {

std::vector<std::uint64_t> idsOf(const EntityList& list) { return {list.ids().begin(), list.ids().end()}; }

TEST(EntityListTest, KeepsTheOrderAndNoIdTwiceHoweverLong) {
  EntityList list;
  std::vector<std::uint64_t> expected;
  for (std::uint64_t i = 0; i < 5000; ++i) {
    const std::uint64_t id = (i * 7919 % 2500) << (i % 3 ? 0 : 40); // repeats, and ids far apart
    if (std::find(expected.begin(), expected.end(), id) == expected.end()) expected.push_back(id);
    list.add(id);
    EXPECT_TRUE(list.contains(id));
  }
  EXPECT_EQ(idsOf(list), expected);
  EXPECT_FALSE(list.contains(3000));
}

TEST(EntityListTest, RemovesFromShortAndLongLists) {
  EntityList list;
  for (std::uint64_t id = 1; id <= 60; ++id)
    list.add(id);
  for (std::uint64_t id = 2; id <= 60; id += 2)
    list.remove(id);
  list.remove(4711);
  ASSERT_EQ(list.size(), 30u);
  for (std::uint64_t id = 1; id <= 60; ++id)
    EXPECT_EQ(list.contains(id), id % 2 == 1) << id;
  for (std::uint64_t id = 60; id >= 1; --id)
    list.add(id);
  EXPECT_EQ(list.size(), 60u);
  EXPECT_EQ(list.ids().back(), 2u);
}

TEST(EntityListTest, RemovesManyAtOnce) {
  EntityList list;
  std::vector<std::uint64_t> even;
  for (std::uint64_t id = 100; id >= 1; --id)
    list.add(id);
  for (std::uint64_t id = 2; id <= 100; id += 2)
    even.push_back(id);
  list.removeAll(even);
  ASSERT_EQ(list.size(), 50u);
  EXPECT_EQ(list.ids().front(), 99u);
  EXPECT_TRUE(list.contains(51));
  EXPECT_FALSE(list.contains(52));
}

TEST(EntityListTest, RefillingAClearedListAllocatesNothing) {
  EntityList list;
  const auto fill = [&] {
    for (std::uint64_t id = 0; id < 1000; ++id)
      list.add(id * 7919 % 1000);
  };
  fill();
  const std::size_t before = getNumberOfAllocations();
  for (int i = 0; i < 5; ++i) {
    list.clear();
    EXPECT_FALSE(list.contains(7));
    fill();
  }
  EXPECT_EQ(getNumberOfAllocations(), before);
  EXPECT_EQ(list.size(), 1000u);
}

}
