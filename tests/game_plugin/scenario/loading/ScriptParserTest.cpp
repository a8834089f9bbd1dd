#include "game_plugin/scenario/loading/ScriptParser.h"

#include "game_plugin/scenario/program/UseConditionalBlockEffect.h"
#include "qsf/log/FaultCounter.h"
#include "tests/game_plugin/scenario/AllocationCounter.h"
#include "tests/game_plugin/scenario/LogCapture.h"
#include "tests/game_plugin/scenario/ScriptFixture.h"

#include <gtest/gtest.h>

#include <memory>

using namespace script;

namespace {

std::shared_ptr<const Program> parse(std::string_view text) {
  return ScriptParser().parseText(text, "file.script", "mod/file.script");
}

std::vector<std::string> names(const Effects& effects) {
  std::vector<std::string> result;
  for (const DefaultEffect* effect : effects)
    result.emplace_back(effect->name());
  return result;
}

TEST(ScriptParser, AnEmptyTextAndAMissingFileGiveEmptyProgramsWithoutAMessage) {
  const LogCapture log;
  EXPECT_TRUE(parse("")->triggers().empty());
  EXPECT_TRUE(ScriptParser().parse("/nowhere/x", "p")->triggers().empty());
  EXPECT_TRUE(log.lines.empty());
}

TEST(ScriptParser, DefaultsOfInitNewTrigger) {
  const auto program = parse("InitNewTrigger();");
  ASSERT_EQ(program->triggers().size(), 1u);
  const TriggerProgram& trigger = *program->triggers()[0];
  EXPECT_EQ(trigger.name, "Trigger_1");
  EXPECT_TRUE(trigger.initialActive);
  EXPECT_FALSE(trigger.initialLooped);
  EXPECT_EQ(trigger.multiplayerMode, 0u);
  EXPECT_EQ(trigger.globalName, "mod/file.script/Trigger_1");
  EXPECT_EQ(trigger.globalNameHash, qsf::StringHash("mod/file.script/Trigger_1").getHash());
  EXPECT_EQ(TriggerProgram().name, "trigger1");
}

TEST(ScriptParser, TabsBracesCarriageReturnsAndTheByteOrderMarkAreNoPartOfALine) {
  const LogCapture log;
  const auto program = parse("\xEF\xBB\xBFInit\tNewTrigger(\"{A}\");\r\n   \r\n// text\n{InitConditions(2);}");
  ASSERT_EQ(program->triggers().size(), 1u);
  EXPECT_EQ(program->triggers()[0]->name, "A");
  EXPECT_EQ(program->triggers()[0]->requiredConditions, 2);
  EXPECT_EQ(log.lines.size(), 1u);
  EXPECT_EQ(log.count(2, "Command is invalid: // text"), 1);
}

TEST(ScriptParser, ADollarAnywhereMakesALineAComment) {
  EXPECT_TRUE(parse("InitNewTrigger(\"a$b\");\n$ InitNewTrigger();\nInitNewTrigger(); $")->triggers().empty());
}

TEST(ScriptParser, RequiredCount) {
  const std::string two = "CompareValues(1);\nCompareValues(1);\n";
  EXPECT_EQ(parse("InitNewTrigger();\nInitConditions();\n" + two)->triggers()[0]->requiredConditions, 2);
  EXPECT_EQ(parse("InitNewTrigger();\nInitConditions(1);\n" + two)->triggers()[0]->requiredConditions, 1);
  EXPECT_EQ(parse("InitNewTrigger();\nInitConditions(5);\n" + two)->triggers()[0]->requiredConditions, 5);
  EXPECT_EQ(parse("InitNewTrigger();\nInitConditions(0);\n" + two)->triggers()[0]->requiredConditions, 2);
  EXPECT_EQ(parse("InitNewTrigger();\nInitConditions(\"-3\");\n" + two)->triggers()[0]->requiredConditions, 2);
}

TEST(ScriptParser, ANewTriggerGoesOnInTheSectionOfTheLastOne) {
  const LogCapture log;
  const auto program =
      parse("InitNewTrigger(\"a\");\nInitEffects();\nInitNewTrigger(\"b\");\nSetVariable(\"x\",\"1\");");
  EXPECT_EQ(names(program->triggers()[1]->effects), std::vector<std::string>{"SetVariable"});
}

TEST(ScriptParser, NegativeEffectsAreEffects) {
  const auto program = parse("InitNewTrigger(\"a\");\nInitNegativEffects();\nReturn();");
  EXPECT_EQ(names(program->triggers()[0]->effects), std::vector<std::string>{"Return"});
}

TEST(ScriptParser, ABlockBecomesAnEffectWhereTheIfStood) {
  const auto program = parse("InitNewTrigger(\"x\");\nInitNewTrigger(\"a\");\nInitEffects();\nSetVariable();\nIf();\n"
                             "!CompareValues();\nThen();\nSetVariable();\nElse();\nReturn();\nThenEnd();\nReturn();");
  const TriggerProgram& trigger = *program->triggers()[1];
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
  const auto program = parse("InitNewTrigger();\nInitEffects();\nIf();\nElse();\nCompareValues();\nThen();\nReturn();");
  const ConditionalBlock& block = *program->triggers()[0]->conditionalBlocks[0];
  EXPECT_EQ(block.conditions.size(), 1u);
  EXPECT_EQ(names(block.elseEffects), std::vector<std::string>{"Return"});
}

TEST(ScriptParser, ASecondIfOpensAFurtherBlock) {
  const auto program = parse("InitNewTrigger();\nInitEffects();\nIf();\nCompareValues();\nIf();\nThen();\nReturn();");
  const TriggerProgram& trigger = *program->triggers()[0];
  ASSERT_EQ(trigger.conditionalBlocks.size(), 2u);
  EXPECT_EQ(trigger.conditionalBlocks[0]->conditions.size(), 1u);
  EXPECT_TRUE(trigger.conditionalBlocks[0]->thenEffects.empty());
  EXPECT_EQ(names(trigger.conditionalBlocks[1]->thenEffects), std::vector<std::string>{"Return"});
}

TEST(ScriptParser, UnknownNamesAreLoggedAndDropped) {
  const LogCapture log;
  const auto program = parse("InitNewTrigger();\nNoSuch();\nAlways();\nInitEffects();\nNoSuch();\nAlways();");
  EXPECT_EQ(log.count(2, "[MS] Error: Condition NoSuch was not found"), 1);
  EXPECT_EQ(log.count(4, "Effect of type: NoSuch can't be found."), 1);
  EXPECT_EQ(log.count(4, "Effect of type: Always can't be found."), 1);
  EXPECT_EQ(log.lines.size(), 3u);
  EXPECT_TRUE(program->triggers()[0]->conditions.empty());
}

TEST(ScriptParser, AFaultBeforeTheFirstTriggerEmptiesThatProgram) {
  for (const char* text :
       {"\nCompareValues();\nInitNewTrigger();", "\nIf();", "\nInitConditions(3);", "InitEffects();\nSetVariable();"}) {
    const LogCapture log;
    EXPECT_TRUE(parse(text)->triggers().empty());
    EXPECT_EQ(
        log.count(4, "The script \"file.script\" can't be used, line 2: invalid vector<T> subscript (the line stands "
                     "before the first InitNewTrigger)"),
        1)
        << text;
  }
}

TEST(ScriptParser, ConditionsThatMakeNoRecordDontFaultBeforeTheFirstTrigger) {
  const LogCapture log;
  EXPECT_EQ(parse("Always();\nNoSuch();\nInitConditions();\nInitEffects();\nInitNewTrigger();")->triggers().size(), 1u);
}

TEST(ScriptParser, SurvivesLongLinesNulBytesAndMissingLineFeeds) {
  const LogCapture log;
  std::string text = "InitNewTrigger(\"" + std::string(10'000'000, 'x') + "\");\n";
  text.append("Foo\0Bar();\n", 11);
  text.append(1'000'000, '(');
  text.append("\nInitNewTrigger(\"last\");");
  const auto program = parse(text);
  ASSERT_EQ(program->triggers().size(), 2u);
  EXPECT_EQ(program->triggers()[0]->name.size(), 10'000'000u);
  EXPECT_EQ(program->triggers()[1]->name, "last");
}

TEST(ScriptParser, TellsWhichEncodingTheFileUsesForTheGlobalMark) {
  EXPECT_EQ(parseDocument("$ \xC2\xA7")->globalMark(), "\xC2\xA7");
  EXPECT_EQ(parseDocument("$ \xA7")->globalMark(), "\xA7");
  EXPECT_EQ(parseDocument("$ plain")->globalMark(), "\xA7");
  EXPECT_EQ(parseDocument("\xEF\xBB\xBF$ plain")->globalMark(), "\xC2\xA7") << "a byte order mark";
  EXPECT_EQ(parseDocument("$ \xE2\x82\xAC \xF0\x9F\x9A\x92")->globalMark(), "\xC2\xA7");
  for (const char* text : {"$ \xE0\x80\xA7", "$ \xED\xA0\x80", "$ \xF0\x80\x80\xA7", "$ \xF4\x90\x80\x80", "$ \xC3"})
    EXPECT_EQ(parseDocument(text)->globalMark(), "\xA7") << text;
}

TEST(ScriptParser, DroppedLinesAreKeptWithTheirPlaceAndReason) {
  const LogCapture log;
  const auto program =
      parse("InitNewTrigger(\"t\");\n\tno command\n\t !NoSuch();\nInitEffects();\n{ NoSuch(); }\nReturn();");
  ASSERT_EQ(program->droppedLines().size(), 3u);
  const auto& lines = program->droppedLines();
  EXPECT_EQ(lines[0].line, 2u);
  EXPECT_EQ(lines[0].column, 1u);
  EXPECT_EQ(lines[0].reason, "Command is invalid: no command");
  EXPECT_EQ(lines[1].line, 3u);
  EXPECT_EQ(lines[1].column, 4u);
  EXPECT_EQ(lines[1].reason, "[MS] Error: Condition NoSuch was not found");
  EXPECT_EQ(lines[2].line, 5u);
  EXPECT_EQ(lines[2].column, 3u);
  EXPECT_EQ(lines[2].reason, "Effect of type: NoSuch can't be found.");
  EXPECT_FALSE(program->hasFailed());
  EXPECT_EQ(names(program->triggers()[0]->effects), std::vector<std::string>{"Return"});
}

TEST(ScriptParser, AFaultIsTheLastDroppedLineAndCounted) {
  const LogCapture log;
  const auto program =
      parse("nonsense\nInitNewTrigger();\nInitConditions();\nInitEffects();\nUseConditionalBlock();\n");
  EXPECT_TRUE(program->hasFailed());
  EXPECT_TRUE(program->triggers().empty());
  ASSERT_EQ(program->droppedLines().size(), 2u);
  EXPECT_EQ(program->droppedLines()[1].line, 5u);
  EXPECT_EQ(program->droppedLines()[1].reason,
            "invalid vector<T> subscript (a parameter is missing that the entry can't do without)");
  EXPECT_EQ(qsf::Qsf::instance()->getFaultCounter().getCount(), 1u);
}

TEST(ScriptParser, MessagesOfALoadAreKeptWithTheirLines) {
  const LogCapture log;
  const auto program = parse("InitNewTrigger(\"t\",yes);\nNoSuch();");
  ASSERT_EQ(program->messages().size(), 2u);
  EXPECT_EQ(program->messages()[0].line, 1u);
  EXPECT_EQ(program->messages()[0].text, "Boolvalue: Active cant be read.|yes|");
  EXPECT_EQ(program->messages()[1].line, 2u);
  EXPECT_EQ(program->messages()[1].severity, 2);
  EXPECT_EQ(log.lines.size(), 2u);
}

/// A machine that a tool imagines.
struct MouseOf : ReadingHost {
  explicit MouseOf(std::vector<std::string> descriptions) : buttons(std::move(descriptions)) {}
  std::vector<std::string> mouseButtons() const override { return buttons; }
  std::vector<KeyboardKey> keyboardKeys() const override { return keys; }
  std::vector<std::string> buttons;
  std::vector<KeyboardKey> keys;
};

TEST(ScriptParser, ReadsForTheMachineThatItIsTold) {
  const std::string text = "InitNewTrigger();\nOnMousePressed(\"Right\");";
  const ScriptParser parser;
  EXPECT_TRUE(parser.parseText(text, "f", "p")->triggers()[0]->conditions.empty()) << "no host, no mouse";
  EXPECT_EQ(parser.parseText(text, "f", "p", MouseOf({"Left", "Right"}))->triggers()[0]->conditions.size(), 1u);
  EXPECT_TRUE(parser.parseText(text, "f", "p", MouseOf({"Left"}))->triggers()[0]->conditions.empty());
}

TEST(ScriptParser, AKeyIsTheFirstThatHasTheTextAsDescriptionOrName) {
  MouseOf host({});
  host.keys = {{"Alpha", "A"}, {"A", "B"}, {"B", "C"}};
  const auto keyOf = [&](const std::string& hotkey) {
    const auto program =
        ScriptParser().parseText("InitNewTrigger();\nIsHotkeyPressed(\"" + hotkey + "\");", "f", "p", host);
    EXPECT_EQ(program->triggers()[0]->conditions.size(), program->keys().size());
    return program->keys().empty() ? "" : program->keys()[0];
  };
  EXPECT_EQ(keyOf("A"), "Alpha") << "of two keys with that text the lower index";
  EXPECT_EQ(keyOf("B"), "A");
  EXPECT_EQ(keyOf("C"), "B");
  EXPECT_EQ(keyOf("Alpha"), "Alpha");
  EXPECT_EQ(keyOf("D"), "");
}

TEST(ScriptParser, TheTriggerOfALine) {
  const auto program = parse("\nInitNewTrigger(\"a\");\n\nInitNewTrigger(\"b\");\n");
  EXPECT_EQ(program->triggerAt(1), "");
  EXPECT_EQ(program->triggerAt(2), "a");
  EXPECT_EQ(program->triggerAt(3), "a");
  EXPECT_EQ(program->triggerAt(4), "b");
  EXPECT_EQ(program->triggerAt(400), "b");
}

/// A script that grows by a character at a time, as under an author's hands.
TEST(ScriptParser, ParsingAtEachKeystrokeLeavesNothingBehind) {
  std::string text;
  for (int trigger = 0; trigger < 8; ++trigger)
    text += "InitNewTrigger(\"trigger " + std::to_string(trigger) +
            "\",true,true);\nInitConditions(1);\n!CompareValues(\"v" + std::to_string(trigger) +
            "\",\"==\",\"1\");\nOnMousePressed(Right);\nInitEffects();\nIf();\nHasName(\"l\",\"n\");\n" +
            "Then();\nSpawnObject(\"a name that is too long for a small string\");\nThenEnd();\n";
  const MouseOf host({"Left", "Right"});
  const auto type = [&] {
    for (std::size_t size = 0; size <= text.size(); ++size)
      ScriptParser().parseText(std::string_view(text).substr(0, size), "file.script", "mod/file.script", host);
  };
  type(); // what is built once stays
  const std::size_t before = getLiveBytes();
  type();
  EXPECT_EQ(getLiveBytes(), before);
}

TEST(ScriptParser, ParsingOneTextAgainAndAgainLeavesNothingBehindInAHost) {
  const LogCapture log;
  qsf::Qsf::instance()->getLogSystem().setThreshold(qsf::LogSystem::NONE);
  const std::string text =
      "InitNewTrigger(\"t\",maybe);\nNoSuch();\nCompareValues(\"v\",\"==\",\"1\");\nInitEffects();\n"
      "SetVariable(\"a name that is too long for a small string\",\"1\");\n";
  parse(text);
  const std::size_t before = getLiveBytes();
  for (int i = 0; i < 10'000; ++i)
    parse(text);
  EXPECT_EQ(getLiveBytes(), before);
}

TEST(ScriptParser, HashesAreFnvOverSignedBytesAndTheTerminatingNul) {
  EXPECT_EQ(qsf::StringHash("").getHash(), 0xFFFFFFFFu);
  // (0x811C9DC5 xor 'a') * prime, then the NUL: * prime once more
  EXPECT_EQ(qsf::StringHash("a").getHash(), (0x811C9DC5u ^ 0x61u) * 16777619u * 16777619u);
  EXPECT_EQ(qsf::StringHash("\xA7").getHash(), (0x811C9DC5u ^ 0xFFFFFFA7u) * 16777619u * 16777619u);
}

}
