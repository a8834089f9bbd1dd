#include "em5/game/Game.h"
#include "game_plugin/ModuleFixture.h"
#include "game_plugin/component/MP_LOG_COMPONENT.h"
#include "game_plugin/scenario/tick/ScenarioConditions.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"
#include "qsf/base/WritePermission.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/input/InputSystem.h"
#include "qsf/input/OisManager.h"
#include "qsf/prototype/PrototypeManager.h"

#include <algorithm>
#include <random>

using namespace script;

namespace {

/// Arguments that entries expect somewhere, and some that they expect nowhere.
constexpr const char* ARGUMENTS[] = {"",
                                     "0",
                                     "1",
                                     "-1",
                                     "2.5",
                                     "2",
                                     "100",
                                     "101 102",
                                     "103 104 105",
                                     "106 108 113 114",
                                     "100 100 999",
                                     "0 1",
                                     "18446744073709551615",
                                     "nan",
                                     "inf",
                                     "-inf",
                                     "1e30",
                                     "list",
                                     "other list",
                                     "svar(s",
                                     "svar(",
                                     "no_list",
                                     "no_var",
                                     "\xC2\xA7g",
                                     "\xA7list",
                                     "1 2 3",
                                     "1 2",
                                     "90 0 0",
                                     "nan nan nan",
                                     "1e38 1e38 1e38",
                                     "em5/prefab/test/tree",
                                     "em5/prefab/test/fire_engine",
                                     "em5/animation/test/nod,2 em5/animation/test/wave",
                                     "em5/audio/test/beep",
                                     "em5::MoveAction",
                                     "move::SetCampPropertyAction",
                                     "INSERT_AT_FRONT",
                                     "REPLACE_WHOLE_PLAN",
                                     "qsf::TransformComponent",
                                     "qsf::MetadataComponent",
                                     "qsf::LinkComponent",
                                     "qsf::MovableComponent",
                                     "qsf::BulletCollisionComponent",
                                     "em5::PersonComponent",
                                     "em5::HealthComponent",
                                     "em5::FireComponent",
                                     "em5::FadeEffectComponent",
                                     "script::OpenHouseComponent",
                                     "Position",
                                     "Rotation",
                                     "Scale",
                                     "ParentId",
                                     "Layer 1",
                                     "Active",
                                     "Arm",
                                     "112",
                                     "North",
                                     "script::MP_LOG_COMPONENT",
                                     "Incoming Message",
                                     "Burning",
                                     "TargetPosition",
                                     "LifeEnergy",
                                     "true",
                                     "false",
                                     ":",
                                     "==",
                                     "PlayerVehicles",
                                     "Civilian",
                                     "T1",
                                     "mod/main.script/T2",
                                     "1000000"};

/// Every entry of the catalogue, with arguments drawn at random, on a map with one of everything.
class CatalogueRobustnessTest : public ModuleTest, public testing::WithParamInterface<unsigned> {
protected:
  std::string line(const std::vector<std::string>& names) {
    const std::string& name = names[random() % names.size()];
    std::string text = (random() % 4 == 0 ? "!" : "") + name + "(";
    // Numbers without a name have no default: a script that leaves them out can't be used at all.
    const unsigned least = name == "SetupBurningBuildingWithTrappedPersons" ? 6 : 0;
    for (unsigned left = std::max<unsigned>(least, random() % 8); left > 0; --left)
      text += "\"" + std::string(ARGUMENTS[random() % std::size(ARGUMENTS)]) + (left > 1 ? "\"," : "\"");
    return text + ");\n";
  }
  std::string randomScript() {
    std::vector<std::string> conditions, effects;
    for (const ConditionGroup* group : ScenarioConditions::groups())
      for (const ConditionEntry* entry : group->chain)
        conditions.emplace_back(entry->name);
    for (const EffectGroup* group : ScenarioEffects::groups())
      for (const EffectEntry* entry : group->chain)
        if (entry->kind == EffectKind::ORDINARY || entry->kind == EffectKind::PRINT_TRIGGER_INFO)
          effects.emplace_back(entry->name);
    std::string text;
    for (int trigger = 0; trigger < 40; ++trigger) {
      text += "InitNewTrigger(\"T" + std::to_string(trigger) + "\",true,true);\nInitConditions(1);\n";
      for (unsigned left = random() % 4; left > 0; --left)
        text += line(conditions);
      text += "InitEffects();\n";
      if (trigger == 0) text += "StartScriptedEvent(\"1\");\n";
      for (unsigned left = 1 + random() % 6; left > 0; --left)
        text += line(effects);
      text += "If();\n" + line(conditions) + "Then();\n" + line(effects) + "Else();\n" + line(effects) + "ThenEnd();\n";
    }
    return text;
  }
  static void populate() {
    std::uint64_t id = 100;
    for (const char* prefab :
         {"fire_engine", "firefighter", "door", "tree", "sensor", "barrel", "civilian", "gangster", "house", "axe",
          "helicopter", "marker", "ladder", "plant", "civil_car", "ebox", "diving_spot"}) {
      qsf::Entity* entity = qsf::getMainMap().createObjectByLocalPrefabAssetId(
          qsf::StringHash(std::string("em5/prefab/test/") + prefab), id++);
      entity->getComponent<qsf::TransformComponent>()->setPosition(glm::vec3(static_cast<float>(id % 7), 0, 0));
    }
  }

  std::mt19937 random{GetParam()};
};

TEST_P(CatalogueRobustnessTest, NothingThatAScriptSaysEndsTheProcess) {
  addScript("main", "MAP_STARTUP_SIMULATION", randomScript());
  MP_LOG_COMPONENT::setFolder(folder());
  load();
  qsf::OisManager& gamepad = session->getQsf().getInputSystem().getOisManager();
  gamepad.plugIn({.vendor = "", .buttons = 2, .axes = 2});
  gamepad.setButton(0, true);
  gamepad.setDirection(1);
  MapScriptManager::replace(true); // reads the script for the gamepad
  session->startGame(EMPTY_MAP);
  qsf::UniqueInstance<qsf::WritePermission>()->limitTo({}, "this test leaves nothing behind");
  populate();
  qsf::UniqueInstance<em5::Game>()->getSelectionManager()->setSelection({100, 101});
  run(2);
  ASSERT_EQ(entry(0).document->triggers.size(), 40u);
  EXPECT_NE(entry(0).handler, nullptr);
  EXPECT_EQ(entry(0).document->time, qsf::Time::fromSeconds(2)) << "it ticked to the end";
}

INSTANTIATE_TEST_SUITE_P(Seeds, CatalogueRobustnessTest, testing::Range(0u, 24u));

}
