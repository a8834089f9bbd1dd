#include "game_plugin/scenario/language/ScriptParser.h"

#include "game_plugin/scenario/records/UseConditionalBlockEffect.h"
#include "tests/game_plugin/scenario/LogCapture.h"

#include <gtest/gtest.h>

#include <memory>

using namespace script;

namespace {

std::unique_ptr<ScriptDocument> parse(std::string_view text) {
  return std::unique_ptr<ScriptDocument>(ScriptParser().parseText(text, "file.script", "mod/file.script"));
}

std::vector<std::string> names(const Effects& effects) {
  std::vector<std::string> result;
  for (const DefaultEffect* effect : effects)
    result.emplace_back(effect->name());
  return result;
}

TEST(ScriptParser, AnEmptyTextAndAMissingFileGiveEmptyDocumentsWithoutAMessage) {
  const LogCapture log;
  EXPECT_TRUE(parse("")->triggers.empty());
  EXPECT_TRUE(std::unique_ptr<ScriptDocument>(ScriptParser().parse("/nowhere/x", "p"))->triggers.empty());
  EXPECT_TRUE(log.lines.empty());
}

TEST(ScriptParser, DefaultsOfInitNewTrigger) {
  const auto document = parse("InitNewTrigger();");
  ASSERT_EQ(document->triggers.size(), 1u);
  const ScenarioTrigger& trigger = document->triggers[0];
  EXPECT_EQ(trigger.name, "Trigger_1");
  EXPECT_TRUE(trigger.active);
  EXPECT_FALSE(trigger.looped);
  EXPECT_EQ(trigger.multiplayerMode, 0u);
  EXPECT_EQ(trigger.globalName, "mod/file.script/Trigger_1");
  EXPECT_EQ(trigger.globalNameHash, qsf::StringHash("mod/file.script/Trigger_1").getHash());
  EXPECT_EQ(ScenarioTrigger().name, "trigger1");
}

TEST(ScriptParser, TabsBracesCarriageReturnsAndTheByteOrderMarkAreNoPartOfALine) {
  const LogCapture log;
  const auto document = parse("\xEF\xBB\xBFInit\tNewTrigger(\"{A}\");\r\n   \r\n// text\n{InitConditions(2);}");
  ASSERT_EQ(document->triggers.size(), 1u);
  EXPECT_EQ(document->triggers[0].name, "A");
  EXPECT_EQ(document->triggers[0].requiredConditions, 2);
  EXPECT_EQ(log.lines.size(), 1u);
  EXPECT_EQ(log.count(2, "Command is invalid: // text"), 1);
}

TEST(ScriptParser, ADollarAnywhereMakesALineAComment) {
  EXPECT_TRUE(parse("InitNewTrigger(\"a$b\");\n$ InitNewTrigger();\nInitNewTrigger(); $")->triggers.empty());
}

TEST(ScriptParser, RequiredCount) {
  const std::string two = "CompareValues(1);\nCompareValues(1);\n";
  EXPECT_EQ(parse("InitNewTrigger();\nInitConditions();\n" + two)->triggers[0].requiredConditions, 2);
  EXPECT_EQ(parse("InitNewTrigger();\nInitConditions(1);\n" + two)->triggers[0].requiredConditions, 1);
  EXPECT_EQ(parse("InitNewTrigger();\nInitConditions(5);\n" + two)->triggers[0].requiredConditions, 5);
  EXPECT_EQ(parse("InitNewTrigger();\nInitConditions(0);\n" + two)->triggers[0].requiredConditions, 2);
  EXPECT_EQ(parse("InitNewTrigger();\nInitConditions(\"-3\");\n" + two)->triggers[0].requiredConditions, 2);
}

TEST(ScriptParser, ANewTriggerGoesOnInTheSectionOfTheLastOne) {
  const LogCapture log;
  const auto document =
      parse("InitNewTrigger(\"a\");\nInitEffects();\nInitNewTrigger(\"b\");\nSetVariable(\"x\",\"1\");");
  EXPECT_EQ(names(document->triggers[1].effects), std::vector<std::string>{"SetVariable"});
}

TEST(ScriptParser, NegativeEffectsAreEffects) {
  const auto document = parse("InitNewTrigger(\"a\");\nInitNegativEffects();\nReturn();");
  EXPECT_EQ(names(document->triggers[0].effects), std::vector<std::string>{"Return"});
}

TEST(ScriptParser, ABlockBecomesAnEffectWhereTheIfStood) {
  const auto document = parse("InitNewTrigger(\"x\");\nInitNewTrigger(\"a\");\nInitEffects();\nSetVariable();\nIf();\n"
                              "!CompareValues();\nThen();\nSetVariable();\nElse();\nReturn();\nThenEnd();\nReturn();");
  const ScenarioTrigger& trigger = document->triggers[1];
  EXPECT_EQ(names(trigger.effects), (std::vector<std::string>{"SetVariable", "UseConditionalBlock", "Return"}));
  const auto& use = static_cast<const UseConditionalBlockEffect&>(*trigger.effects[1]);
  EXPECT_EQ(use.triggerIndex, 1);
  EXPECT_EQ(use.blockIndex, 0);
  ASSERT_EQ(trigger.conditionalBlocks.size(), 1u);
  const ConditionalBlock& block = *trigger.conditionalBlocks[0];
  ASSERT_EQ(block.conditions.size(), 1u);
  EXPECT_FALSE(block.conditions[0]->expected);
  EXPECT_EQ(block.conditions[0]->line, 6u);
  EXPECT_EQ(names(block.thenEffects), std::vector<std::string>{"SetVariable"});
  EXPECT_EQ(names(block.elseEffects), std::vector<std::string>{"Return"});
}

TEST(ScriptParser, AnElseWithoutThenLeavesTheReaderInConditions) {
  const auto document =
      parse("InitNewTrigger();\nInitEffects();\nIf();\nElse();\nCompareValues();\nThen();\nReturn();");
  const ConditionalBlock& block = *document->triggers[0].conditionalBlocks[0];
  EXPECT_EQ(block.conditions.size(), 1u);
  EXPECT_EQ(names(block.elseEffects), std::vector<std::string>{"Return"});
}

TEST(ScriptParser, ASecondIfOpensAFurtherBlock) {
  const auto document = parse("InitNewTrigger();\nInitEffects();\nIf();\nCompareValues();\nIf();\nThen();\nReturn();");
  const ScenarioTrigger& trigger = document->triggers[0];
  ASSERT_EQ(trigger.conditionalBlocks.size(), 2u);
  EXPECT_EQ(trigger.conditionalBlocks[0]->conditions.size(), 1u);
  EXPECT_TRUE(trigger.conditionalBlocks[0]->thenEffects.empty());
  EXPECT_EQ(names(trigger.conditionalBlocks[1]->thenEffects), std::vector<std::string>{"Return"});
}

TEST(ScriptParser, UnknownNamesAreLoggedAndDropped) {
  const LogCapture log;
  const auto document = parse("InitNewTrigger();\nNoSuch();\nAlways();\nInitEffects();\nNoSuch();\nAlways();");
  EXPECT_EQ(log.count(2, "[MS] Error: Condition NoSuch was not found"), 1);
  EXPECT_EQ(log.count(4, "Effect of type: NoSuch can't be found."), 1);
  EXPECT_EQ(log.count(4, "Effect of type: Always can't be found."), 1);
  EXPECT_EQ(log.lines.size(), 3u);
  EXPECT_TRUE(document->triggers[0].conditions.empty());
}

TEST(ScriptParser, AFaultBeforeTheFirstTriggerEmptiesThatDocument) {
  for (const char* text :
       {"\nCompareValues();\nInitNewTrigger();", "\nIf();", "\nInitConditions(3);", "InitEffects();\nSetVariable();"}) {
    const LogCapture log;
    EXPECT_TRUE(parse(text)->triggers.empty());
    EXPECT_EQ(log.count(4, "The script \"file.script\" can't be used, line 2: invalid vector<T> subscript"), 1) << text;
  }
}

TEST(ScriptParser, ConditionsThatMakeNoRecordDontFaultBeforeTheFirstTrigger) {
  const LogCapture log;
  EXPECT_EQ(parse("Always();\nNoSuch();\nInitConditions();\nInitEffects();\nInitNewTrigger();")->triggers.size(), 1u);
}

TEST(ScriptParser, SurvivesLongLinesNulBytesAndMissingLineFeeds) {
  const LogCapture log;
  std::string text = "InitNewTrigger(\"" + std::string(10'000'000, 'x') + "\");\n";
  text.append("Foo\0Bar();\n", 11);
  text.append(1'000'000, '(');
  text.append("\nInitNewTrigger(\"last\");");
  const auto document = parse(text);
  ASSERT_EQ(document->triggers.size(), 2u);
  EXPECT_EQ(document->triggers[0].name.size(), 10'000'000u);
  EXPECT_EQ(document->triggers[1].name, "last");
}

TEST(ScriptParser, TellsWhichEncodingTheFileUsesForTheGlobalMark) {
  EXPECT_EQ(parse("$ \xC2\xA7")->globalMark(), "\xC2\xA7");
  EXPECT_EQ(parse("$ \xA7")->globalMark(), "\xA7");
  EXPECT_EQ(parse("$ plain")->globalMark(), "\xA7");
  EXPECT_EQ(parse("\xEF\xBB\xBF$ plain")->globalMark(), "\xC2\xA7") << "a byte order mark";
  EXPECT_EQ(parse("$ \xE2\x82\xAC \xF0\x9F\x9A\x92")->globalMark(), "\xC2\xA7");
  for (const char* text : {"$ \xE0\x80\xA7", "$ \xED\xA0\x80", "$ \xF0\x80\x80\xA7", "$ \xF4\x90\x80\x80", "$ \xC3"})
    EXPECT_EQ(parse(text)->globalMark(), "\xA7") << text;
}

TEST(ScriptParser, HashesAreFnvOverSignedBytesAndTheTerminatingNul) {
  EXPECT_EQ(qsf::StringHash("").getHash(), 0xFFFFFFFFu);
  // (0x811C9DC5 xor 'a') * prime, then the NUL: * prime once more
  EXPECT_EQ(qsf::StringHash("a").getHash(), (0x811C9DC5u ^ 0x61u) * 16777619u * 16777619u);
  EXPECT_EQ(qsf::StringHash("\xA7").getHash(), (0x811C9DC5u ^ 0xFFFFFFA7u) * 16777619u * 16777619u);
}

}
