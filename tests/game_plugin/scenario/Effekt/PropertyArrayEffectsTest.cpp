#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ScriptParser.h"
#include "game_plugin/scenario/shared/ClosestSearch.h"
#include "tests/game_plugin/scenario/LogCapture.h"

#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/ClassRegistry.h"

#include <gtest/gtest.h>

#include <memory>

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

/// A bare host with an entity 100, and a script that fires at once.
class PropertyArrayEffectsTest : public testing::Test {
protected:
  PropertyArrayEffectsTest() : handler(new ScenarioHandler(std::make_shared<GlobalStores>())) {
    qsf::ClassRegistry::declareOnce<FixedArrayComponent>();
    component = qsf::getMainMap().createEntity(100)->getOrCreateComponent<FixedArrayComponent>();
  }
  ~PropertyArrayEffectsTest() override {
    ScenarioHandler::Retire(handler);
    qsf::getMainMap().clear();
    qsf::ClassRegistry::removeClass(camp::classByType<FixedArrayComponent>());
  }
  void run(const std::string& effects) {
    mDocument.reset(ScriptParser().parseText(
        "InitNewTrigger(\"Start\",true,false);\nAlways();\nInitEffects();\n" + effects, "test", "test/main.script"));
    handler->SetDocument(mDocument.get());
    handler->Start(StartKind::Realtime);
    handler->Update(qsf::JobArguments(qsf::Time::fromSeconds(0.05)));
  }

  LogCapture log;
  ScenarioHandler* handler;
  FixedArrayComponent* component;

private:
  std::unique_ptr<ScriptDocument> mDocument;
};

TEST_F(PropertyArrayEffectsTest, AnArrayThatCantGrowIsToldAndStays) {
  run("AddEntryToPropertyArray(\"100\", \"test::FixedArrayComponent\", \"Places\", \"5\");\n"
      "RemoveEntryFromPropertyArray(\"100\", \"test::FixedArrayComponent\", \"Places\", \"7\");");
  EXPECT_EQ(log.count(2, "the given array is not dynamic test::FixedArrayComponent Places"), 2);
  EXPECT_EQ(component->places[0], 7);
}

TEST_F(PropertyArrayEffectsTest, AnArrayThatCantGrowCanBeRead) {
  run("WriteArrayEntriesIntoEntityList(\"100\", \"test::FixedArrayComponent\", \"Places\", \"true\", \"out\");\n"
      "GetSizeOfEntityList(\"out\", \"size\");");
  EXPECT_EQ(handler->ResolveFloat(std::string("size")), 3);
}

TEST_F(PropertyArrayEffectsTest, APropertyThatIsNoArrayIsReportedAtItsPlace) {
  run("WriteArrayEntriesIntoTheLog(\"100\", \"test::FixedArrayComponent\", \"Active\");");
  EXPECT_EQ(log.count(4, "CAMP array expected"), 1);
  bool placeTold = false;
  for (const auto& [severity, line] : log.lines)
    placeTold =
        placeTold || line.find("game_plugin\\scenario\\Effekt\\ComponentsAndVariablesEffects") != std::string::npos;
  EXPECT_TRUE(placeTold);
}

TEST_F(PropertyArrayEffectsTest, TheClosestSearchPicksEachIdOnceAndCountsWhatWasThere) {
  for (const std::uint64_t id : {101, 102, 103})
    qsf::getMainMap().createEntity(id)->getOrCreateComponent<qsf::TransformComponent>()->setPosition(
        {static_cast<float>(200 - id), 0, 0});
  const qsf::Entity& reference = *qsf::getMainMap().getEntityById(100);
  const std::vector<std::uint64_t> candidates{101, 102, 101, 103, 102};
  std::vector<std::uint64_t> picked{100};
  pickClosest(*handler, candidates, reference, Argument("3"), picked);
  EXPECT_EQ(picked, (std::vector<std::uint64_t>{100, 103, 102}));
  picked.clear();
  pickClosest(*handler, candidates, reference, Argument("9"), picked);
  EXPECT_EQ(picked, (std::vector<std::uint64_t>{103, 102, 101}));
}

}
