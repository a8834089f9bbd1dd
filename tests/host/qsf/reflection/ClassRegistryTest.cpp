#include "qsf/reflection/ClassRegistry.h"
#include "qsf/Qsf.h"
#include "qsf/reflection/Object.h"

#include <camp/classbuilder.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

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
class Derived : public First {
  CAMP_RTTI()
public:
  static void declareCamp() { camp::Class::declare<Derived>("registryTest::Derived").base<First>().constructor0(); }
};

}
CAMP_TYPE_NONCOPYABLE(registryTest::First)
CAMP_TYPE_NONCOPYABLE(registryTest::Second)
CAMP_TYPE_NONCOPYABLE(registryTest::Derived)

namespace {

using qsf::ClassRegistry;

// In the order of their names, whichever source's constant came first.
TEST(ClassRegistry, AHostKnowsItsOwnClassesByName) {
  qsf::Qsf host;
  std::vector<std::string> names;
  for (const camp::Class* metaclass : ClassRegistry::getClasses())
    names.push_back(metaclass->name());
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
  for (const char* name : {"qsf::TransformComponent", "qsf::WaitAction", "em5::DoorComponent", "em5::FreeplayEvent"})
    EXPECT_NE(ClassRegistry::findClass(name), nullptr) << name;
  for (const char* base : {"qsf::Object", "qsf::Prototype", "qsf::Component", "qsf::Action"})
    EXPECT_EQ(ClassRegistry::findClass(base), nullptr) << base;
}

TEST(ClassRegistry, FindsAddedClassesByTheHashOfTheirName) {
  const std::size_t before = ClassRegistry::getClasses().size();
  for (int i = 0; i < 2; ++i) { // each host of a process asks again
    ClassRegistry::declareOnce<registryTest::Second>();
    ClassRegistry::declareOnce<registryTest::First>();
  }
  ASSERT_EQ(ClassRegistry::getClasses().size(), before + 2);
  const camp::Class* second = ClassRegistry::findClass("registryTest::Second");
  const camp::Class* first = ClassRegistry::findClass("registryTest::First");
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->name(), "registryTest::Second");
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

TEST(ClassRegistry, AClassMayHaveOtherNamesWhichGoWithIt) {
  const std::size_t before = ClassRegistry::getClasses().size();
  ClassRegistry::declareOnce<registryTest::First>();
  ClassRegistry::declareOnce<registryTest::Second>();
  const camp::Class& first = camp::classByType<registryTest::First>();
  const camp::Class& second = camp::classByType<registryTest::Second>();
  ClassRegistry::addOtherName(first, "registryTest::Nickname");
  ClassRegistry::addOtherName(second, "registryTest::Nickname"); // taken
  EXPECT_EQ(&first, ClassRegistry::findClass("registryTest::Nickname"));
  EXPECT_EQ(before + 2, ClassRegistry::getClasses().size());
  ClassRegistry::removeClass(first);
  EXPECT_EQ(nullptr, ClassRegistry::findClass("registryTest::Nickname"));
  ClassRegistry::removeClass(second);
}

TEST(ClassRegistry, MakesObjectsOfAClassThatFitsTheBase) {
  ClassRegistry::declareOnce<registryTest::First>();
  ClassRegistry::declareOnce<registryTest::Second>();
  ClassRegistry::declareOnce<registryTest::Derived>();
  const auto made = ClassRegistry::createObject<registryTest::First>("registryTest::Derived");
  ASSERT_NE(nullptr, made);
  EXPECT_EQ("registryTest::Derived", made->getCampClass().name());
  EXPECT_EQ(nullptr, ClassRegistry::createObject<registryTest::Second>("registryTest::Derived"));
  EXPECT_EQ(nullptr, ClassRegistry::createObject<registryTest::First>("registryTest::First")); // has no constructor
  EXPECT_EQ(nullptr, ClassRegistry::createObject<registryTest::First>("registryTest::None"));
  for (const char* name : {"registryTest::First", "registryTest::Second", "registryTest::Derived"})
    ClassRegistry::removeClass(*ClassRegistry::findClass(name));
}

}
