#include "qsf/map/Map.h"
#include "qsf/reflection/ClassRegistry.h"
#include "tests/game_plugin/scenario/LogCapture.h"
#include "tests/game_plugin/scenario/ScriptFixture.h"

#include <gtest/gtest.h>

namespace {

/// Three places that are always there: an array that can't grow.
class FixedArrayComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"test::FixedArrayComponent"};
  explicit FixedArrayComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  int places[3] = {7, 8, 9};
};

}
CAMP_TYPE_NONCOPYABLE(FixedArrayComponent)

namespace {

void FixedArrayComponent::declareCamp() {
  camp::Class::declare<FixedArrayComponent>("test::FixedArrayComponent")
      .base<qsf::Component>()
      .constructor1<qsf::Prototype*>()
      .property("Places", &FixedArrayComponent::places);
}

using namespace script;

/// A bare host with an entity 100 that has such places.
class PropertyArrayEffectsTest : public testing::Test {
protected:
  PropertyArrayEffectsTest() {
    qsf::ClassRegistry::declareOnce<FixedArrayComponent>();
    component = qsf::getMainMap().createEntity(100)->getOrCreateComponent<FixedArrayComponent>();
  }
  ~PropertyArrayEffectsTest() override {
    qsf::getMainMap().clear();
    qsf::ClassRegistry::removeClass(camp::classByType<FixedArrayComponent>());
  }

  LogCapture log;
  EntryRunner runner;
  FixedArrayComponent* component;
};

TEST_F(PropertyArrayEffectsTest, AnArrayThatCantGrowIsToldAndStays) {
  runner.run({"AddEntryToPropertyArray", "100", "test::FixedArrayComponent", "Places", "5"});
  runner.run({"RemoveEntryFromPropertyArray", "100", "test::FixedArrayComponent", "Places", "7"});
  EXPECT_EQ(log.count(2, "the given array is not dynamic test::FixedArrayComponent Places"), 2);
  EXPECT_EQ(component->places[0], 7);
}

TEST_F(PropertyArrayEffectsTest, AnArrayThatCantGrowCanBeRead) {
  runner.run({"WriteArrayEntriesIntoEntityList", "100", "test::FixedArrayComponent", "Places", "true", "out"});
  EXPECT_EQ(runner.list("out"), (std::vector<std::uint64_t>{7, 8, 9}));
}

TEST_F(PropertyArrayEffectsTest, APropertyThatIsNoArrayIsReportedAtItsPlace) {
  runner.run({"WriteArrayEntriesIntoTheLog", "100", "test::FixedArrayComponent", "Active"});
  EXPECT_EQ(log.count(4, "CAMP array expected"), 1);
  bool placeTold = false;
  for (const auto& [severity, line] : log.lines)
    placeTold =
        placeTold || line.find("game_plugin\\scenario\\Effekt\\ComponentsAndVariablesEffects") != std::string::npos;
  EXPECT_TRUE(placeTold);
}

}
