#include "game_plugin/ModuleFixture.h"

namespace {

class IsScenarioActiveTest : public ModuleTest {
protected:
  bool isActive(const std::string& path) {
    script::ScenarioHandler& handler = *entry(0).handler;
    const script::DefaultCondition* record = handler.GetConditions().create({"IsScenarioActive", path});
    return record->entry->test(*record, handler, script::Evaluation{qsf::Time::ZERO, nullptr});
  }
};

TEST_F(IsScenarioActiveTest, ListedScriptIsKnownByItsFile) {
  addScript("main", "MAP_STARTUP", "");
  addScript("idle", "TEMPORARY", "");
  start();
  EXPECT_TRUE(isActive(entry(0).path));
  EXPECT_FALSE(isActive("main.script"));
  EXPECT_FALSE(isActive(entry(1).path)) << "it is listed, but doesn't run";
}

}
