#include "game_plugin/scenario/lifecycle/ScriptFates.h"

#include "game_plugin/ModuleFixture.h"
#include "game_plugin/tooling/Tooling.h"

extern "C" script::tooling::Tooling* getTidemarkTooling();

using namespace script;
using tooling::FateView;

namespace {

/// Seen as tools see them.
class ScriptFatesTest : public ModuleTest {
protected:
  static std::vector<FateView> fates() { return getTidemarkTooling()->getFates(); }
  std::string temporary(const std::string& text) {
    return write("mod", "x64/tidemark/temporary.script", text) + "/x64/tidemark/temporary.script";
  }
};

TEST_F(ScriptFatesTest, AScriptThatRunsHasNone) {
  addScript("main", "MAP_STARTUP", "InitNewTrigger(\"t\");");
  start();
  run(0.1);
  EXPECT_TRUE(fates().empty());
  EXPECT_TRUE(getTidemarkTooling()->getUnreadableConfigurations().empty());
}

TEST_F(ScriptFatesTest, ARefusedScriptIsNamedWithItsReason) {
  write("mod", "x64/tidemark/a.script", "");
  loadList(R"({"MapScripts": {
    "gone": {"Path": "gone.script", "Mode": "MAP_STARTUP", "Maps": ["All"]},
    "modeless": {"Path": "a.script", "Maps": ["All"]},
    "odd": {"Path": "a.script", "Mode": "SOMETIMES", "Maps": ["All"]},
    "nowhere": {"Path": "a.script", "Mode": "MAP_STARTUP", "Maps": ["no/map/x"]},
    "fine": {"Path": "a.script", "Mode": "MAP_STARTUP", "Maps": ["All"]}}})");
  ASSERT_EQ(fates().size(), 4u);
  EXPECT_EQ(fates()[0].key, "gone");
  EXPECT_EQ(fates()[0].project, "mod");
  EXPECT_EQ(fates()[0].path, scriptPath("gone"));
  EXPECT_EQ(fates()[0].what, "MapscriptManager: gone cant be created because the Mapscriptfile \"" +
                                 scriptPath("gone") + "\" does not exist or can't be open");
  EXPECT_EQ(fates()[1].key, "modeless");
  EXPECT_EQ(fates()[1].what,
            "MapscriptManager: The node \"MapScripts.modeless.Mode\" cant be found. Skipping Creation Process");
  EXPECT_EQ(fates()[2].key, "odd");
  EXPECT_EQ(fates()[2].mode, "UNKNOWN");
  EXPECT_EQ(fates()[3].key, "nowhere");
  EXPECT_EQ(fates()[3].what, "MapscriptManager: Array of valid maps is emptry");
  EXPECT_EQ(fates()[3].mode, "MAP_STARTUP");
  for (const FateView& fate : fates())
    EXPECT_EQ(count(4, fate.what), 1) << fate.key;
}

TEST_F(ScriptFatesTest, AStoppedScriptIsNamedWithTheLineThatStoppedIt) {
  const std::string path = temporary("InitNewTrigger(\"t\",true,true);");
  addScript("main", "MAP_STARTUP",
            "InitNewTrigger(\"a\",true,false);\nInitEffects();\nStartScenario(\"" + path +
                "\");\nInitNewTrigger(\"b\",true,false);\nInitConditions();\nTimer(\"0.1\");\nInitEffects();"
                "\nStopScenario(\"" +
                path + "\");");
  start();
  run(0.3);
  ASSERT_EQ(fates().size(), 1u);
  EXPECT_EQ(fates()[0].key, path);
  EXPECT_EQ(fates()[0].project, "");
  EXPECT_EQ(fates()[0].mode, "TEMPORARY");
  EXPECT_EQ(fates()[0].what, "stopped by StopScenario, main.script:8");
  EXPECT_GT(fates()[0].time, qsf::Time::ZERO);
  EXPECT_LE(fates()[0].time, qsf::Time::fromSeconds(0.15));
  EXPECT_EQ(fates()[0].count, 1u);
}

TEST_F(ScriptFatesTest, InstancesThatEndAlikeAreCounted) {
  addScript("main", "MAP_STARTUP", "");
  start();
  for (int i = 0; i < 3; ++i) {
    manager().StartTemporaryScript("x");
    manager().stopScript("x");
  }
  ASSERT_EQ(fates().size(), 1u);
  EXPECT_EQ(fates()[0].what, "stopped by StopScenario");
  EXPECT_EQ(fates()[0].count, 3u);
}

TEST_F(ScriptFatesTest, AConfiguredScriptThatStopsItselfIsNamed) {
  addScript("main", "MAP_STARTUP",
            "InitNewTrigger(\"a\",true,false);\nInitEffects();\nStopScenario(\"" + scriptPath("main") + "\");");
  start();
  run(0.1);
  ASSERT_EQ(fates().size(), 1u);
  EXPECT_EQ(fates()[0].key, "main");
  EXPECT_EQ(fates()[0].project, "mod");
  EXPECT_EQ(fates()[0].what, "stopped by StopScenario, main.script:3");
}

TEST_F(ScriptFatesTest, ATemporaryScriptEndsWithItsMap) {
  addScript("main", "MAP_STARTUP", "");
  start();
  manager().StartTemporaryScript("x");
  session->endGame();
  ASSERT_EQ(fates().size(), 1u);
  EXPECT_EQ(fates()[0].key, "x");
  EXPECT_EQ(fates()[0].what, "ended with its map");
}

TEST_F(ScriptFatesTest, AConfigurationThatCantBeReadIsNamed) {
  addScript("main", "MAP_STARTUP", "");
  loadList("{\"MapScripts\": {");
  ASSERT_EQ(getTidemarkTooling()->getUnreadableConfigurations().size(), 1u);
  const std::string message = getTidemarkTooling()->getUnreadableConfigurations()[0];
  EXPECT_NE(message.find("/mod/x64/tidemark/MapScript.json"), std::string::npos) << message;
  EXPECT_EQ(count(4, message), 1);
  EXPECT_TRUE(fates().empty());
}

TEST_F(ScriptFatesTest, AReloadForgetsThem) {
  addScript("main", "MAP_STARTUP", "");
  start();
  manager().StartTemporaryScript("x");
  manager().stopScript("x");
  write("mod", "x64/tidemark/MapScript.json", "{\"MapScripts\": {");
  getTidemarkTooling()->reload();
  EXPECT_TRUE(fates().empty());
  EXPECT_EQ(getTidemarkTooling()->getUnreadableConfigurations().size(), 1u);
  write("mod", "x64/tidemark/MapScript.json", "{\"MapScripts\": {}}");
  getTidemarkTooling()->reload();
  EXPECT_TRUE(getTidemarkTooling()->getUnreadableConfigurations().empty());
}

TEST_F(ScriptFatesTest, TheyAreBoundedHoweverManyScriptsEnd) {
  addScript("main", "MAP_STARTUP", "");
  start();
  for (int i = 0; i < 1200; ++i) {
    const std::string path = "script " + std::to_string(i);
    manager().StartTemporaryScript(path);
    manager().stopScript(path);
  }
  EXPECT_EQ(fates().size(), 1000u);
  EXPECT_EQ(manager().getScriptEntries().size(), 1u);
}

}
