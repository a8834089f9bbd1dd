#include "em5/game/Game.h"
#include "em5/game/Player.h"
#include "game_plugin/ModuleFixture.h"
#include "qsf/log/FaultCounter.h"

using namespace script;

namespace {

/// A session of several machines, seen from one of them. There is no network yet, so nothing carries a hit to the host.
class TickOnClientsTest : public ModuleTest {
protected:
  void SetUp() override {
    ModuleTest::SetUp();
    std::string text;
    for (const char* mode : {"MP_Trigger_Runs_On_Hostside", "MP_GUI_Sync", "MP_Run_Independend"})
      for (const char* looped : {"false", "true"})
        text += std::string("InitNewTrigger(\"") + mode + " " + looped + "\",true," + looped + ",\"" + mode +
                "\");\nInitConditions();\nCompareValues(\"1\",\"==\",\"1\");\nInitEffects();\nVariableModify(\"" +
                mode + " " + looped + "\",\"+\",\"1\",\"" + mode + " " + looped + "\");\n";
    addScript("main", "MAP_STARTUP_SIMULATION", text);
    start();
  }
  void becomePlayer(unsigned int index) {
    qsf::UniqueInstance<em5::Game>()->getPlayerManager()->getLocalPlayer()->setPlayerIndex(index);
  }
  ScenarioTrigger& trigger(const std::string& name) const { return *entry(0).document->findTrigger(name); }
  float variable(const std::string& name) const { return entry(0).handler->ResolveFloat(name); }
};

TEST_F(TickOnClientsTest, TriggersOfTheHostAreNotEvaluated) {
  becomePlayer(2);
  run(0.2);
  for (const char* name : {"MP_Trigger_Runs_On_Hostside false", "MP_Trigger_Runs_On_Hostside true"}) {
    EXPECT_TRUE(trigger(name).active) << name;
    EXPECT_EQ(trigger(name).fulfilledConditions, 0u) << name;
    EXPECT_EQ(trigger(name).lastTimeActive, qsf::Time::ZERO) << name;
    EXPECT_EQ(variable(name), 0) << name;
  }
}

TEST_F(TickOnClientsTest, ASynchronisedTriggerIsEvaluatedAndLeavesItsEffectsToTheHost) {
  becomePlayer(1);
  trigger("MP_GUI_Sync true").makeCall().player = 3;
  run(0.2);
  EXPECT_FALSE(trigger("MP_GUI_Sync false").active);
  EXPECT_TRUE(trigger("MP_GUI_Sync true").active);
  EXPECT_EQ(trigger("MP_GUI_Sync false").fulfilledConditions, 1u);
  EXPECT_EQ(trigger("MP_GUI_Sync false").lastTimeActive, TICK);
  EXPECT_EQ(trigger("MP_GUI_Sync true").lastTimeActive, qsf::Time::fromMicroseconds(200'000));
  EXPECT_EQ(trigger("MP_GUI_Sync true").player(), 3u) << "the host's own to set";
  EXPECT_EQ(variable("MP_GUI_Sync false"), 0);
  EXPECT_EQ(variable("MP_GUI_Sync true"), 0);
  EXPECT_EQ(count(2, "Cant send Instructions (GUISYNC)"), 1 + 4) << "nobody takes the message";
}

TEST_F(TickOnClientsTest, AnIndependentTriggerRunsItsEffects) {
  becomePlayer(3);
  run(0.2);
  EXPECT_EQ(variable("MP_Run_Independend false"), 1);
  EXPECT_EQ(variable("MP_Run_Independend true"), 4);
  EXPECT_FALSE(trigger("MP_Run_Independend false").active);
}

TEST_F(TickOnClientsTest, OnTheHostAllRunAndASynchronisedOneIsTheHosts) {
  trigger("MP_GUI_Sync false").makeCall().player = 3;
  trigger("MP_Run_Independend false").makeCall().player = 3;
  run(0.05);
  for (const char* mode : {"MP_Trigger_Runs_On_Hostside", "MP_GUI_Sync", "MP_Run_Independend"})
    EXPECT_EQ(variable(std::string(mode) + " false"), 1) << mode;
  EXPECT_EQ(trigger("MP_GUI_Sync false").player(), 0u);
  EXPECT_EQ(trigger("MP_Run_Independend false").player(), 3u);
  EXPECT_EQ(count(2, "Cant send Instructions (GUISYNC)"), 0);
}

TEST_F(TickOnClientsTest, TheIndexIsAskedAnewInEachTick) {
  becomePlayer(1);
  run(0.1);
  becomePlayer(0);
  run(0.1);
  EXPECT_EQ(variable("MP_Trigger_Runs_On_Hostside true"), 2);
  EXPECT_EQ(variable("MP_GUI_Sync true"), 2);
}

}
