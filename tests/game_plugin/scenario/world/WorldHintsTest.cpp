#include "game_plugin/scenario/world/WorldHints.h"

#include "game_plugin/ModuleFixture.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"

using namespace script;

namespace {

/// What a script that names things of the world is told, on a map with the entities 100 and 101.
class WorldHintsTest : public ModuleTest {
protected:
  void SetUp() override {
    ModuleTest::SetUp();
    hints::switchTo(true);
  }
  void TearDown() override {
    hints::switchTo(false);
    ModuleTest::TearDown();
  }
  /// Runs the effects, which begin in line 3, for a frame.
  void runEffects(const std::string& effects) {
    addScript("main", "MAP_STARTUP", "InitNewTrigger(\"t\",true,false);\nInitEffects();\n" + effects);
    start();
    for (const std::uint64_t id : {100, 101}) {
      qsf::Entity* entity = qsf::getMainMap().createEntity(id);
      entity->getOrCreateComponent<qsf::TransformComponent>();
      entity->getOrCreateComponent<qsf::MetadataComponent>();
    }
    run(0.05);
  }
  /// "line: text (nearest) count" of each hint of that kind.
  static std::vector<std::string> told(HintKind kind) {
    std::vector<std::string> lines;
    for (const Hint& hint : hints::all())
      if (hint.kind == kind)
        lines.push_back(std::to_string(hint.line) + ": " + hint.text + " (" + hint.nearest + ") " +
                        std::to_string(hint.count));
    return lines;
  }
  using Lines = std::vector<std::string>;
};

TEST_F(WorldHintsTest, AComponentThatDoesNotExistIsToldWithTheNearestOne) {
  runEffects("SetComponentProperty(\"100\",\"qsf::MetadtaComponent\",\"Name\",\"x\");\n"
             "SetComponentProperty(\"100 101\",\"qsf::LinkComponent\",\"Active\",\"1\");\n"
             "SetComponentProperty(\"100\",\"qsf::MetadataComponent\",\"Name\",\"x\");\n");
  EXPECT_EQ(told(HintKind::COMPONENT),
            (Lines{"3: there is no component \"qsf::MetadtaComponent\" (qsf::MetadataComponent) 1",
                   "4: no entity of the list has the component \"qsf::LinkComponent\" () 1"}));
  EXPECT_EQ(hints::all().size(), 2u);
}

TEST_F(WorldHintsTest, APropertyThatDoesNotExistIsToldWithTheNearestOne) {
  runEffects("SetComponentProperty(\"100\",\"qsf::TransformComponent\",\"Positon\",\"1 2 3\");\n"
             "SetComponentProperty(\"100\",\"qsf::TransformComponent\",\"Position\",\"1 2 3\");\n");
  EXPECT_EQ(told(HintKind::PROPERTY),
            Lines{"3: the component qsf::TransformComponent has no property \"Positon\" (Position) 1"});
}

TEST_F(WorldHintsTest, APropertyThatDoesNotTakeTheValueIsTold) {
  runEffects("SetComponentProperty(\"100\",\"qsf::TransformComponent\",\"Active\",\"perhaps\");\n");
  ASSERT_EQ(told(HintKind::PROPERTY).size(), 1u);
  EXPECT_EQ(told(HintKind::PROPERTY)[0].find(
                "3: the property \"Active\" of qsf::TransformComponent is not what it is used as: "),
            0u)
      << told(HintKind::PROPERTY)[0];
}

TEST_F(WorldHintsTest, AnIdWithoutAnEntityIsTold) {
  runEffects(
      "SetComponentProperty(\"100 998 999\",\"qsf::MetadataComponent\",\"Name\",\"x\");\nDestroyObject(\"101\");\n"
      "AddEntityToEntityList(\"100\",\"l\");\nDestroyObject(\"l\");\n");
  EXPECT_EQ(told(HintKind::ENTITY), (Lines{"3: there is no entity 998 () 1", "3: there is no entity 999 () 1"}));
}

TEST_F(WorldHintsTest, AnAssetThatNobodyHasIsToldWithTheNearestOne) {
  runEffects(
      "SpawnObject(\"em5/prefab/test/fire_engin\",\"l\");\nSpawnObject(\"em5/prefab/test/fire_engine\",\"l\");\n");
  EXPECT_EQ(told(HintKind::ASSET),
            Lines{"3: no project has the asset \"em5/prefab/test/fire_engin\" (em5/prefab/test/fire_engine) 1"});
}

TEST_F(WorldHintsTest, ALinkThatIsRefusedIsTold) {
  runEffects("LinkEntityToParent(\"100\",\"101\");\nLinkEntityToParent(\"101\",\"100\");\n");
  EXPECT_EQ(told(HintKind::LINK), Lines{"4: entity 101 can't be linked below 100, which is below it () 1"});
}

TEST_F(WorldHintsTest, NothingIsToldWhileHintsAreOff) {
  hints::switchTo(false);
  runEffects("SetComponentProperty(\"100 999\",\"qsf::MetadtaComponent\",\"Name\",\"x\");\n"
             "SetComponentProperty(\"100\",\"qsf::TransformComponent\",\"Positon\",\"1\");\n"
             "SpawnObject(\"em5/prefab/test/fire_engin\",\"l\");\n"
             "LinkEntityToParent(\"100\",\"101\");\nLinkEntityToParent(\"101\",\"100\");\n");
  EXPECT_TRUE(hints::all().empty());
}

TEST_F(WorldHintsTest, AUnitTypeThatDoesNotExistIsToldWithTheNearestOne) {
  runEffects("AddUnitsFromTypeToEntityList(\"l\",\"Gangsters\",\"true\",\"1\");\n");
  ASSERT_EQ(told(HintKind::WORD).size(), 2u) << "when it is read and when it is looked for";
  EXPECT_EQ(told(HintKind::WORD)[0].find("3: \"Gangsters\" is no word that UnitType knows (Gangster) "), 0u);
}

}
