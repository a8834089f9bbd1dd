#include "game_plugin/tooling/Tooling.h"

#include "game_plugin/ModuleFixture.h"

#include "game_plugin/scenario/stores/JsonStore.h"

extern "C" script::tooling::Tooling* getTidemarkTooling();

using namespace script;
using namespace script::tooling;

namespace {

class ToolingTest : public ModuleTest {
protected:
  Tooling& tooling = *getTidemarkTooling();
  const std::string text =
      "InitNewTrigger(\"first\",true,true);\nInitConditions(1);\n!CompareValues(\"v\",\"==\",\"1\");\n"
      "InitEffects();\nVariableModify(\"n\",\"+\",\"1\",\"n\");\nIf();\nThen();\nThenEnd();\n"
      "InitNewTrigger(\"second\",false,false);\n";
};

TEST_F(ToolingTest, ShowsNothingWithoutAManager) {
  EXPECT_TRUE(tooling.getScripts().empty());
  EXPECT_TRUE(tooling.getTriggers(0).empty());
  EXPECT_TRUE(tooling.getNames(std::nullopt, StoreKind::VARIABLES).empty());
  EXPECT_EQ(tooling.getVariable(0, "a"), std::nullopt);
  EXPECT_FALSE(tooling.setVariable(0, "a", 1));
  EXPECT_TRUE(tooling.getDroppedLines().empty());
  EXPECT_EQ(tooling.getOrigin(), std::nullopt);
}

TEST_F(ToolingTest, ShowsScriptsAndTriggers) {
  addScript("main", "MAP_STARTUP", text);
  start();
  run(0.1);
  ASSERT_EQ(tooling.getScripts().size(), 1u);
  const ScriptView script = tooling.getScripts()[0];
  EXPECT_EQ(script.key + "|" + script.project + "|" + script.path + "|" + script.mode,
            "main|mod|" + scriptPath("main") + "|MAP_STARTUP");
  EXPECT_TRUE(script.running);
  EXPECT_EQ(script.time, qsf::Time::fromSeconds(0.1));
  const std::vector<TriggerView> triggers = tooling.getTriggers(0);
  ASSERT_EQ(triggers.size(), 2u);
  EXPECT_EQ(triggers[0].globalName, "mod/main.script/first");
  EXPECT_EQ(triggers[0].timesFired, 2u);
  EXPECT_EQ(triggers[0].fulfilledConditions, 1u);
  EXPECT_EQ(triggers[0].requiredConditions, 1);
  EXPECT_EQ(triggers[0].numberOfBlocks, 1u);
  ASSERT_EQ(triggers[0].conditions.size(), 1u);
  EXPECT_EQ(triggers[0].conditions[0].name, "CompareValues");
  EXPECT_FALSE(triggers[0].conditions[0].expected);
  EXPECT_EQ(triggers[0].conditions[0].line, 3u);
  ASSERT_EQ(triggers[0].effects.size(), 2u);
  EXPECT_EQ(triggers[0].effects[1].name, "UseConditionalBlock");
  EXPECT_FALSE(triggers[1].active);
  EXPECT_EQ(triggers[1].line, 9u);
}

TEST_F(ToolingTest, ShowsTheBidsForScriptedCommands) {
  EXPECT_TRUE(tooling.getCommandBids().empty());
  addScript("main", "MAP_STARTUP",
            "InitNewTrigger(\"t\",true,true);\nStartMouseClickCommand(\"heal\",\"cross\");\n"
            "EndMouseClickCommand(\"heal\",\"5\");\n"
            "InitNewTrigger(\"u\",true,true);\nStartMouseClickCommand(\"carry\",\"hand\");\n");
  start();
  run(0.05);
  const std::vector<CommandBidView> bids = tooling.getCommandBids();
  ASSERT_EQ(bids.size(), 2u);
  EXPECT_EQ(bids[0].name + "|" + bids[0].icon, "heal|cross");
  EXPECT_EQ(bids[0].priority, 5.0f);
  EXPECT_TRUE(bids[0].armed);
  EXPECT_EQ(bids[1].name + "|" + bids[1].icon, "carry|hand");
  EXPECT_EQ(bids[1].priority, 0.0f);
  EXPECT_FALSE(bids[1].armed);
}

TEST_F(ToolingTest, ReadingMakesNoEntry) {
  addScript("main", "MAP_STARTUP", "");
  start();
  EXPECT_EQ(tooling.getVariable(0, "a"), std::nullopt);
  EXPECT_EQ(tooling.getString(0, "a"), std::nullopt);
  EXPECT_EQ(tooling.getList(0, "a"), std::nullopt);
  EXPECT_EQ(tooling.getBool(0, "a"), std::nullopt);
  EXPECT_EQ(tooling.getStringList(0, "a"), std::nullopt);
  EXPECT_EQ(tooling.getJson(0, "a", "b"), std::nullopt);
  for (const StoreKind kind : {StoreKind::VARIABLES, StoreKind::STRINGS, StoreKind::LISTS, StoreKind::BOOLS,
                               StoreKind::JSONS, StoreKind::STRING_LISTS})
    EXPECT_TRUE(tooling.getNames(0, kind).empty());
}

TEST_F(ToolingTest, SetsWhereAScriptWould) {
  addScript("main", "MAP_STARTUP", "");
  start();
  const std::string global = "\xA7g";
  EXPECT_TRUE(tooling.setVariable(0, "a", 1.5f));
  EXPECT_TRUE(tooling.setVariable(0, global, 2));
  EXPECT_TRUE(tooling.setString(0, "s", "text"));
  EXPECT_TRUE(tooling.setBool(0, "b", true));
  EXPECT_TRUE(tooling.setList(0, "l", {3, 4}));
  EXPECT_TRUE(tooling.setList(0, "l", {5}));
  EXPECT_TRUE(tooling.setList(0, "empty", {}));
  EXPECT_EQ(tooling.getVariable(0, "a"), 1.5f);
  EXPECT_EQ(tooling.getVariable(std::nullopt, global), 2);
  EXPECT_EQ(tooling.getVariable(0, global), std::nullopt);
  EXPECT_EQ(tooling.getString(0, "s"), "text");
  EXPECT_EQ(tooling.getBool(0, "b"), true);
  EXPECT_EQ(tooling.getList(0, "l"), std::vector<std::uint64_t>{5});
  EXPECT_EQ(tooling.getList(0, "empty"), std::vector<std::uint64_t>{});
  EXPECT_FALSE(tooling.setVariable(1, "a", 1));
}

TEST_F(ToolingTest, JsonValuesAreFoundByPath) {
  addScript("main", "MAP_STARTUP", "");
  start();
  boost::property_tree::ptree tree;
  tree.put("a.b", "c");
  entry(0).handler->SetJsonVariable("j", tree);
  EXPECT_EQ(tooling.getJson(0, "j", "a.b"), "c");
  EXPECT_EQ(tooling.getJson(0, "j", "a.x"), std::nullopt);
  EXPECT_EQ(tooling.getNames(0, StoreKind::JSONS), std::vector<std::string>{"j"});
}

TEST_F(ToolingTest, AReloadInAGameStartsTheMapAndKeepsTheCounts) {
  addScript("main", "MAP_STARTUP", text);
  start();
  run(0.1);
  write("mod", "x64/tidemark/main.script", "InitNewTrigger(\"new\",false,false);\n" + text);
  tooling.reload();
  ASSERT_TRUE(tooling.getScripts()[0].running);
  ASSERT_EQ(tooling.getTriggers(0).size(), 3u);
  EXPECT_EQ(tooling.getTriggers(0)[0].timesFired, 0u);
  EXPECT_EQ(tooling.getTriggers(0)[1].timesFired, 2u);
  run(0.05);
  EXPECT_EQ(tooling.getTriggers(0)[1].timesFired, 3u);
}

TEST_F(ToolingTest, CountsBeginAnewWithTheHost) {
  addScript("main", "MAP_STARTUP", text);
  start();
  run(0.1);
  session.reset();
  start();
  EXPECT_EQ(tooling.getTriggers(0)[0].timesFired, 0u);
}

TEST_F(ToolingTest, ToldWhatALoadHasDropped) {
  addScript("main", "MAP_STARTUP", "InitNewTrigger(\"t\");\n\tNoSuch();\nno command\n");
  addScript("fault", "MAP_STARTUP", "$ a comment\nCompareValues();\n");
  start();
  const std::vector<DroppedLineView> lines = tooling.getDroppedLines();
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].path, scriptPath("fault"));
  EXPECT_EQ(lines[0].line, 2u);
  EXPECT_EQ(lines[0].reason, "invalid vector<T> subscript (the line stands before the first InitNewTrigger)");
  EXPECT_EQ(lines[1].path, scriptPath("main"));
  EXPECT_EQ(lines[1].line, 2u);
  EXPECT_EQ(lines[1].column, 2u);
  EXPECT_EQ(lines[1].reason, "[MS] Error: Condition NoSuch was not found");
  EXPECT_EQ(lines[2].line, 3u);
  EXPECT_EQ(lines[2].column, 1u);
  EXPECT_EQ(lines[2].reason, "Command is invalid: no command");
}

TEST_F(ToolingTest, TheStateOfAScriptTellsWhyItCantBeUsed) {
  addScript("fault", "MAP_STARTUP", "\nCompareValues();\n");
  addScript("idle", "TEMPORARY", "");
  addScript("main", "MAP_STARTUP", "");
  start();
  EXPECT_EQ(tooling.getScripts()[0].state, "can't be used, line 2: invalid vector<T> subscript (the line stands before "
                                           "the first InitNewTrigger)");
  EXPECT_EQ(tooling.getScripts()[1].state, "stopped");
  EXPECT_EQ(tooling.getScripts()[2].state, "running");
}

TEST_F(ToolingTest, SwitchesHintsAndShowsThem) {
  addScript("main", "MAP_STARTUP", "InitNewTrigger(\"t\",true,true);\nCompareValues(\"v\",\"==\",\"1\");\n");
  start();
  run(0.1);
  EXPECT_TRUE(tooling.getHints().empty());
  tooling.switchHints(true);
  tooling.reload();
  run(0.1);
  const std::vector<HintView> hints = tooling.getHints();
  ASSERT_EQ(hints.size(), 1u);
  EXPECT_EQ(hints[0].origin.path, scriptPath("main"));
  EXPECT_EQ(hints[0].origin.line, 2u);
  EXPECT_EQ(hints[0].origin.trigger, "t");
  EXPECT_EQ(hints[0].kind, "name");
  EXPECT_EQ(hints[0].text, "the variable \"v\" is read, but nobody has written it");
  EXPECT_EQ(hints[0].count, 2u);
  tooling.setVariable(0, "v", 0);
  EXPECT_TRUE(tooling.getHints().empty()) << "tools write as scripts do";
  tooling.switchHints(false);
}

TEST_F(ToolingTest, GlobalNamesAreSetAndReadInEitherEncoding) {
  addScript("main", "MAP_STARTUP", "");
  start();
  EXPECT_TRUE(tooling.setVariable(std::nullopt, "\xA7g", 1));
  EXPECT_TRUE(tooling.setVariable(0, "\xC2\xA7g", 2));
  EXPECT_EQ(tooling.getVariable(std::nullopt, "\xA7g"), 2);
  EXPECT_EQ(tooling.getNames(std::nullopt, StoreKind::VARIABLES), std::vector<std::string>{"\xC2\xA7g"});
}

TEST_F(ToolingTest, AReloadInTheEditorGoesByItsMessage) {
  load(em5::HostSession::Kind::EDITOR);
  tooling.reload();
  EXPECT_EQ(count(2, "***** MapscriptManager started succesfully *****"), 2);
  EXPECT_EQ(session->getQsf().getMessageSystem().getEmittedCount("script::ForceHotReload_EditorOnly"), 1u);
}

}
