#include "em5/freeplay/FreeplaySystem.h"
#include "em5/gui/EmergencyGui.h"
#include "em5/plugin/Plugin.h"
#include "em5/settings/GameDebugGroup.h"
#include "game_plugin/ModuleFixture.h"

namespace {

/// What effects change in systems of the game that no script test sees.
class GameEffectsTest : public ModuleTest {
protected:
  /// Runs a script of these effects for one frame.
  void runEffects(const std::string& effects) {
    addScript("main", "MAP_STARTUP", "InitNewTrigger(\"t\",true,false);\nInitEffects();\n" + effects);
    start();
    run(0.05);
  }
  static bool isDebugWindowVisible() {
    return qsf::UniqueInstance<em5::EmergencyGui>()->getIngameHud()->getDebugGuiWindow()->isVisible();
  }
  static em5::FreeplaySystem& freeplay() { return em5::Plugin::getInstance()->getFreeplaySystem(); }
};

TEST_F(GameEffectsTest, ShowDebuggingGuiShowsTheWindowByDefault) {
  runEffects("ShowDebuggingGui();");
  EXPECT_TRUE(isDebugWindowVisible());
}

TEST_F(GameEffectsTest, ShowDebuggingGuiHidesTheWindow) {
  runEffects("ShowDebuggingGui(true);\nShowDebuggingGui(false);");
  EXPECT_FALSE(isDebugWindowVisible());
}

TEST_F(GameEffectsTest, EnableFreeplayEventsSwitchesThemOff) {
  runEffects("EnableFreeplayEvents(false);");
  EXPECT_FALSE(qsf::UniqueInstance<em5::GameDebugGroup>()->getActiveFreeplay());
}

TEST_F(GameEffectsTest, EnableFreeplayEventsSwitchesThemOnByDefault) {
  runEffects("EnableFreeplayEvents(false);\nEnableFreeplayEvents();");
  EXPECT_TRUE(qsf::UniqueInstance<em5::GameDebugGroup>()->getActiveFreeplay());
}

TEST_F(GameEffectsTest, AddFreeplayEventPoolReachesTheFreeplaySystem) {
  runEffects("AddFreeplayEventPool(\"em5/em5_eventpool/test/quick\");");
  EXPECT_EQ(freeplay().getEventPoolNames(), std::vector<std::string>{"em5/em5_eventpool/test/quick"});
}

TEST_F(GameEffectsTest, StartEventLeavesTheEndOfAnEventToItsDefinition) {
  runEffects("StartEvent(\"em5/em5_event/test/locked\");");
  const em5::FreeplayEvent* event = freeplay().getEventManager().getLastEvent();
  ASSERT_NE(event, nullptr);
  EXPECT_EQ(event->getDefinition(), "em5/em5_event/test/locked");
  EXPECT_FALSE(event->getCanWinEvent());
  EXPECT_FALSE(event->getCanLoseEvent());
}

TEST_F(GameEffectsTest, StartEventUnlocksTheEndOfAnEvent) {
  runEffects("StartEvent(\"em5/em5_event/test/locked\",true);");
  const em5::FreeplayEvent* event = freeplay().getEventManager().getLastEvent();
  ASSERT_NE(event, nullptr);
  EXPECT_TRUE(event->getCanWinEvent());
  EXPECT_TRUE(event->getCanLoseEvent());
}

TEST_F(GameEffectsTest, StartEventThatStartsNothingUnlocksNothing) {
  runEffects("StartEvent(\"em5/em5_event/test/locked\");\nStartEvent(\"test/nobody\",true);");
  const em5::FreeplayEvent* event = freeplay().getEventManager().getLastEvent();
  ASSERT_NE(event, nullptr);
  EXPECT_FALSE(event->getCanWinEvent());
}

}
