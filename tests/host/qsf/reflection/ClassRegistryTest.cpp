#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/Object.h"

#include <camp/classbuilder.hpp>
#include <gtest/gtest.h>

namespace registryTest {

class First : public qsf::Object {
  CAMP_RTTI()
public:
  static void declareCamp() { camp::Class::declare<First>("registryTest::First"); }
};
class Second : public qsf::Object {
  CAMP_RTTI()
public:
  static void declareCamp() { camp::Class::declare<Second>("registryTest::Second"); }
};

}
CAMP_TYPE_NONCOPYABLE(registryTest::First)
CAMP_TYPE_NONCOPYABLE(registryTest::Second)

namespace {

using qsf::ClassRegistry;

TEST(ClassRegistry, FindsAddedClassesByTheHashOfTheirName) {
  const std::size_t before = ClassRegistry::getClasses().size();
  for (int i = 0; i < 2; ++i) { // each host of a process asks again
    ClassRegistry::declareOnce<registryTest::Second>();
    ClassRegistry::declareOnce<registryTest::First>();
  }
  ASSERT_EQ(ClassRegistry::getClasses().size(), before + 2);
  const camp::Class* second = ClassRegistry::getClasses()[before];
  const camp::Class* first = ClassRegistry::getClasses()[before + 1];
  EXPECT_EQ(second->name(), "registryTest::Second");
  EXPECT_EQ(ClassRegistry::findClass("registryTest::Second"), second);
  EXPECT_EQ(qsf::findComponentClass("registryTest::First"), first);
  EXPECT_EQ(ClassRegistry::findClass("registryTest::Third"), nullptr);
  EXPECT_EQ(ClassRegistry::findClass(qsf::StringHash()), nullptr);

  ClassRegistry::removeClass(*second);
  ClassRegistry::removeClass(*second);
  EXPECT_EQ(ClassRegistry::findClass("registryTest::Second"), nullptr);
  EXPECT_EQ(ClassRegistry::findClass("registryTest::First"), first);
  ClassRegistry::removeClass(*first);
  EXPECT_EQ(ClassRegistry::getClasses().size(), before);
}

}
