// What conditions answer where a script test can't bring the game.
#include "game_plugin/ModuleFixture.h"
#include "game_plugin/scenario/ScriptFixture.h"
#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"
#include "game_plugin/scenario/world/GuiDocuments.h"

#include "em5/application/Application.h"
#include "em5/game/Game.h"
#include "em5/settings/GameSettingsGroup.h"
#include "tests/game_plugin/scenario/AllocationCounter.h"
#include "tests/game_plugin/scenario/LogCapture.h"

using namespace script;

namespace {

using GameConditionsTest = ModuleTest;

TEST_F(GameConditionsTest, GetLocalPlayerIdKnowsTheClient) {
  start();
  qsf::UniqueInstance<em5::Game>()->getPlayerManager()->getLocalPlayer()->setPlayerIndex(2);
  EntryRunner runner;
  EXPECT_TRUE(runner.test({"GetLocalPlayerId", "2", "=="}));
  EXPECT_FALSE(runner.test({"GetLocalPlayerId", "0", "=="}));
  EXPECT_TRUE(runner.test({"GetLocalPlayerId", "1", ">"})) << "the player's index stands on the left";
}

TEST_F(GameConditionsTest, IsGameModeIsFalseInAModeThatNobodyKnows) {
  start();
  qsf::UniqueInstance<em5::Application>()->getGameSessionConfiguration().setGameModeType(
      static_cast<em5::GameModeType>(9));
  EntryRunner runner;
  EXPECT_FALSE(runner.test({"IsGameMode", "true", "true", "true", "true", "true"}));
}

TEST_F(GameConditionsTest, ConditionsOfTheGameAreFalseOnABareHost) {
  const LogCapture host;
  EntryRunner runner;
  for (const char* name : {"GetLocalPlayerId", "IsGameMode", "IsModActive", "IsPluginLoaded", "PlayerHasName",
                           "IsDocumentVisible", "UnitSpawned", "UnitSelectionChanged", "UseEquipmentActionMessageSend",
                           "ScenarioActivateTriggerMessageArrived", "EndMouseClickCommand"})
    EXPECT_FALSE(runner.test({name})) << name;
  EXPECT_TRUE(runner.test({"StartMouseClickCommand"}));
  EXPECT_TRUE(runner.test({"ChangeMouseIconConditional", "icon"}));
  EXPECT_FALSE(runner.test({"PlayerHasName", ""})) << "there is no account to hold even an empty text";
}

struct OneDocument : GuiDocuments {
  OneDocument() { set(this); }
  virtual ~OneDocument() { set(nullptr); }
  bool isVisible(const std::string& uniqueId) const override { return visible && uniqueId == "A"; }
  bool visible = true;
};

TEST_F(GameConditionsTest, IsDocumentVisibleAsksWhoManagesTheDocuments) {
  const LogCapture host;
  EntryRunner runner;
  {
    OneDocument documents;
    EXPECT_TRUE(runner.test({"IsDocumentVisible", "A"}));
    EXPECT_FALSE(runner.test({"IsDocumentVisible", "B"}));
    documents.visible = false;
    EXPECT_FALSE(runner.test({"IsDocumentVisible", "A"}));
  }
  EXPECT_FALSE(runner.test({"IsDocumentVisible", "A"}));
}

/// Conditions that stay false in a game, as words.
class IdleGameConditionTest : public ModuleTest, public testing::WithParamInterface<Words> {};

TEST_P(IdleGameConditionTest, AllocatesNothingWhileItStaysFalse) {
  start();
  EntryRunner runner;
  ASSERT_NE(ScenarioMessageReciever::get(), nullptr);
  ScenarioMessageReciever::get()->registerHandler(runner.handler);
  const DefaultCondition* made = runner.makeCondition(GetParam());
  ASSERT_NE(made, nullptr);
  EXPECT_FALSE(runner.test(*made));
  const std::size_t before = getNumberOfAllocations();
  bool held = false;
  for (int i = 0; i < 10; ++i) {
    ScenarioMessageReciever::get()->advanceHandler(runner.handler);
    held = runner.test(*made) || held;
  }
  EXPECT_EQ(getNumberOfAllocations(), before);
  EXPECT_FALSE(held);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, IdleGameConditionTest,
    testing::Values(Words{"GetLocalPlayerId", "1", "=="}, Words{"IsHotkeyPressed", "A"}, Words{"OnHotkeyPressed", "A"},
                    Words{"MouseWheelIsMoving", "true", "false", "wheel"}, Words{"EndMouseClickCommand", "heal", "5"},
                    Words{"StringVarMatchsString", "svar(s)", "b"}, Words{"IsGameMode", "false", "false"},
                    Words{"IsModActive", "a modification of a long name"},
                    Words{"IsPluginLoaded", "a plug-in of a long name"}, Words{"GetLanguage", "de"},
                    Words{"PlayerHasName", "Ada"}, Words{"IsDocumentVisible", "A"},
                    Words{"UnitSpawned", "spawned", "em5/prefab/test/tree"}, Words{"UnitSelectionChanged"},
                    Words{"UseEquipmentActionMessageSend", "axe1", "callers", "targets"},
                    Words{"ScenarioActivateTriggerMessageArrived", "bell", "units"}),
    [](const testing::TestParamInfo<Words>& entry) { return entry.param[0]; });

}
