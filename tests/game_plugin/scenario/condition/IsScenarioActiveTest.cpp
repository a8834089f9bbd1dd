#include "game_plugin/ModuleFixture.h"
#include "game_plugin/scenario/ScriptFixture.h"

namespace {

using IsScenarioActiveTest = ModuleTest;

TEST_F(IsScenarioActiveTest, ListedScriptIsKnownByItsFile) {
  addScript("main", "MAP_STARTUP", "");
  addScript("idle", "TEMPORARY", "");
  start();
  EntryRunner runner;
  EXPECT_TRUE(runner.test({"IsScenarioActive", entry(0).path}));
  EXPECT_FALSE(runner.test({"IsScenarioActive", "main.script"}));
  EXPECT_FALSE(runner.test({"IsScenarioActive", entry(1).path})) << "it is listed, but doesn't run";
}

}
