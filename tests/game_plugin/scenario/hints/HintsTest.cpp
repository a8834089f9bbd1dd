#include "game_plugin/scenario/hints/Hints.h"

#include "game_plugin/scenario/hints/ExecutionPoint.h"
#include "tests/game_plugin/scenario/AllocationCounter.h"
#include "tests/game_plugin/scenario/LogCapture.h"
#include "tests/game_plugin/scenario/ScriptFixture.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace script;

namespace {

/// Hints while a test runs, with a bare host.
class HintsTest : public testing::Test {
protected:
  HintsTest() { hints::switchTo(true); }
  ~HintsTest() override { hints::switchTo(false); }

  /// "line trigger: text (nearest) count", in the order of their telling.
  static Words told() {
    Words lines;
    for (const Hint& hint : hints::all())
      lines.push_back(std::to_string(hint.line) + " " + hint.trigger + ": " + hint.text + " (" + hint.nearest + ") " +
                      std::to_string(hint.count));
    return lines;
  }
  static std::vector<HintKind> kinds() {
    std::vector<HintKind> all;
    for (const Hint& hint : hints::all())
      all.push_back(hint.kind);
    return all;
  }

  const LogCapture log;
};

TEST_F(HintsTest, AWordThatAnEntryDoesNotKnowIsToldWithTheNearestOne) {
  parseDocument(
      "InitNewTrigger(\"t\",true,true,\"MP_GUI_Sinc\");\nDoorHasState(\"l\",\"out\",\"DOOR_OPNE\");\n"
      "DoorHasState(\"l\",\"out\",\"DOOR_OPEN\");\nDoorHasState(\"l\",\"out\",svar(state));\nDoorHasState();");
  EXPECT_EQ(told(), (Words{"1 t: \"MP_GUI_Sinc\" is no word that MultiplayerMode knows (MP_GUI_Sync) 1",
                           "2 t: \"DOOR_OPNE\" is no word that Door_State knows (DOOR_OPEN) 1"}));
  EXPECT_EQ(kinds(), (std::vector{HintKind::WORD, HintKind::WORD}));
  EXPECT_EQ(hints::all()[0].path, "file.script");
}

TEST_F(HintsTest, AFlagThatIsNeitherTrueNorFalseIsTold) {
  parseDocument("InitNewTrigger(\"t\",TRUE);");
  EXPECT_EQ(told(), Words{"1 t: \"TRUE\" is neither true nor false; true is used for Active () 1"});
  EXPECT_EQ(kinds(), std::vector{HintKind::WORD});
}

TEST_F(HintsTest, AnOperatorThatMeansLessThanIsTold) {
  parseDocument(
      "InitNewTrigger(\"t\");\nCompareValues(\"1\",\"=\",\"2\");\nCompareValues(\"1\",\"<\",\"2\");\nCompareValues();");
  ASSERT_EQ(hints::all().size(), 1u);
  EXPECT_EQ(kinds(), std::vector{HintKind::OPERATOR});
  EXPECT_EQ(hints::all()[0].text, "\"=\" is no operator and means <");
  EXPECT_EQ(hints::all()[0].line, 2u);
}

TEST_F(HintsTest, ATextThatDoesNotConvertIsTold) {
  parseDocument("InitNewTrigger(\"t\");\nInitConditions(some);\nUnitsInArea(\"1\",\"two\",\"far\");");
  EXPECT_EQ(told(), (Words{"2 t: \"ssome\" is no whole number; -1 is used () 1",
                           "3 t: \"two\" is no whole number for Number; 1 is used () 1",
                           "3 t: \"far\" is no number for Range; 200 is used () 1"}));
  EXPECT_EQ(kinds(), (std::vector{HintKind::CONVERSION, HintKind::CONVERSION, HintKind::CONVERSION}));
}

TEST_F(HintsTest, APlaceIsToldOnceAndCounted) {
  Script script("InitNewTrigger(\"t\",true,true);\nCompareValues(\"unseen\",\"==\",\"1\");");
  script.tick(5);
  EXPECT_EQ(told(), Words{"2 t: the variable \"unseen\" is read, but nobody has written it () 5"});
  EXPECT_EQ(kinds(), std::vector{HintKind::NAME});
}

TEST_F(HintsTest, EachKindOfStoreIsCalledByItsName) {
  Script script("InitNewTrigger(\"t\",true,false);\nEntityListHasSize(\"l\",\"<\",\"1\");\nInitEffects();\n"
                "SetStringVariableToValue(\"a\",svar(b));\nDoLogEntry(\"INFO\",svar(a));");
  script.tick();
  EXPECT_EQ(told(), (Words{"2 t: the list \"l\" is read, but nobody has written it () 1",
                           "4 t: the string variable \"b\" is read, but nobody has written it () 1"}));
}

TEST_F(HintsTest, ANameThatIsWrittenLaterIsNoHint) {
  Script script("InitNewTrigger(\"t\",true,true);\nInitConditions(1);\nCompareValues(\"v\",\"==\",\"1\");"
                "\nCompareValues(\"v\",\"<\",\"1\");\n"
                "InitEffects();\nSetVariable(\"v\",\"1\");\n");
  script.tick();
  EXPECT_EQ(told(), Words());
  script.tick(3);
  EXPECT_EQ(told(), Words());
}

TEST_F(HintsTest, ANameThatALineMeansToWriteIsNoHint) {
  Script script(
      "InitNewTrigger(\"t\",true,true);\nCompareValues(\"v\",\"==\",\"1\");\nEntityListHasSize(\"l\",\"<\",\"1\");"
      "\nInitNewTrigger(\"never\",false,false);\nInitEffects();\nSetVariable(\"v\",\"1\");\n"
      "AddEntityToEntityList(\"1\",\"l\");\n");
  script.tick(2);
  EXPECT_EQ(told(), Words());
}

TEST_F(HintsTest, ALocalNameIsMeantByItsOwnScriptOnlyAndAGlobalOneByAny) {
  Script reader("InitNewTrigger(\"t\",true,true);\nInitConditions(1);\nCompareValues(\"v\",\"==\",\"1\");\n"
                "CompareValues(\"\xA7g\",\"==\",\"1\");");
  reader.tick();
  EXPECT_EQ(hints::all().size(), 2u);
  parseDocument("InitNewTrigger(\"never\",false,false);\nInitEffects();\nSetVariable(\"\xC2\xA7g\",\"1\");\n"
                "SetVariable(\"v\",\"1\");\n",
                "other.script");
  ASSERT_EQ(hints::all().size(), 1u);
  EXPECT_EQ(hints::all()[0].text, "the variable \"v\" is read, but nobody has written it");
}

TEST_F(HintsTest, ANameThatALineLeavesOutIsNoHint) {
  Script script("InitNewTrigger(\"t\",true,true);\nIsEntityExisting();\n");
  script.tick();
  EXPECT_EQ(told(), Words());
}

TEST_F(HintsTest, ANameThatIsWrittenFirstIsNoHint) {
  Script script("InitNewTrigger(\"t\",true,true);\nInitEffects();\nSetVariable(\"v\",\"1\");\nSetStringVariableToValue("
                "\"s\",\"a\");\n"
                "ClearEntityIdList(\"l\");\nVariableModify(\"v\",\"+\",\"1\",\"v\");\nDoLogEntry(\"INFO\",svar(s));\n"
                "GetSizeOfEntityList(\"l\",\"v\");\n");
  script.tick(2);
  EXPECT_EQ(told(), Words());
}

TEST_F(HintsTest, AGlobalNameThatAnotherScriptWritesIsNoHint) {
  Script reader("InitNewTrigger(\"t\",true,true);\nCompareValues(\"\xC2\xA7g\",\"==\",\"1\");");
  reader.tick();
  EXPECT_EQ(hints::all().size(), 1u);
  ScenarioHandler writer(std::shared_ptr<GlobalStores>(&reader.handler->getGlobalStores(), [](GlobalStores*) {}));
  writer.SetFloatVariable(std::string("\xC2\xA7g"), 1);
  EXPECT_EQ(told(), Words());
}

TEST_F(HintsTest, AGlobalNameIsWrittenInEitherEncodingOfItsMark) {
  Script script("InitNewTrigger(\"t\",true,false);\nInitConditions(0);\nCompareValues(\"\xA7v\",\"==\",\"0\");"
                "\nEntityListHasSize(\"\xA7l\",\"<\",\"1\");\n"
                "InitEffects();\nDoLogEntry(\"INFO\",svar(\xA7s));\nSetVariable(\"\xA7v\",\"1\");\n"
                "SetStringVariableToValue(\"\xA7s\",\"1\");\nClearEntityIdList(\"\xA7l\");\n");
  script.tick();
  EXPECT_EQ(told(), Words());
}

TEST_F(HintsTest, AGlobalListThatIsEmptiedBeforeItIsThereIsMeantToBe) {
  Script script("InitNewTrigger(\"t\",true,false);\nInitEffects();\nClearEntityIdList(\"\xA7l\");\n"
                "GetSizeOfEntityList(\"\xA7l\",\"v\");\n");
  script.tick();
  EXPECT_EQ(told(), Words());
}

TEST_F(HintsTest, NamesOfOtherScriptsLocalStoresAreNoMatter) {
  Script reader("InitNewTrigger(\"t\",true,true);\nCompareValues(\"v\",\"==\",\"1\");");
  Script writer(
      parseDocument("InitNewTrigger(\"t\",true,true);\nInitEffects();\nSetVariable(\"v\",\"1\");", "other.script"));
  writer.tick();
  reader.tick();
  EXPECT_EQ(hints::all().size(), 1u);
}

TEST_F(HintsTest, ANameThatWasReadInVainStaysAHintWhenItsScriptEnds) {
  {
    Script script("InitNewTrigger(\"t\",true,true);\nCompareValues(\"v\",\"==\",\"1\");");
    script.tick();
  }
  EXPECT_EQ(hints::all().size(), 1u);
}

TEST_F(HintsTest, NothingIsToldOutsideOfScripts) {
  ScenarioHandler handler(std::make_shared<GlobalStores>());
  handler.ResolveFloat(std::string("v"));
  hints::tell(HintKind::ASSET, "text");
  EXPECT_EQ(told(), Words());
}

TEST_F(HintsTest, SwitchingForgetsWhatWasTold) {
  parseDocument("InitNewTrigger(\"t\",TRUE);");
  hints::switchTo(true);
  EXPECT_EQ(told(), Words());
}

TEST_F(HintsTest, ATickThatTellsTheSameAgainAndAgainTakesNoMemory) {
  qsf::Qsf::instance()->getLogSystem().setThreshold(qsf::LogSystem::NONE);
  Script script("InitNewTrigger(\"t\",true,true);\nInitConditions(0);\nCompareValues(\"v\",\"==\",\"0\");\n"
                "CompareValues(\"v\",\"<\",\"1\");\nEntityListHasSize(\"l\",\"<\",\"1\");\nEntityListHasSize(\"l\",\"<"
                "\",\"2\");");
  script.tick(2);
  const std::size_t before = getLiveBytes();
  script.tick(10'000);
  EXPECT_LT(getLiveBytes(), before + 1000);
  EXPECT_EQ(hints::all().size(), 4u);
  EXPECT_EQ(hints::all()[0].count, 10'002u);
}

TEST(Hints, AreOffAtFirstAndNothingIsCollectedThen) {
  const LogCapture log;
  EXPECT_FALSE(hints::isOn());
  Script script("InitNewTrigger(\"t\",TRUE,true,\"MP\");\nCompareValues(\"v\",\"=\",\"1\");\nUnitsInArea(\"x\");");
  script.tick(3);
  const ExecutionScope scope(script.document->program.get(), 1);
  hints::tell(HintKind::ASSET, "text");
  EXPECT_TRUE(hints::all().empty());
  hints::switchTo(true);
  EXPECT_TRUE(hints::all().empty());
  hints::switchTo(false);
}

TEST(Hints, TheNearestNameIsOneThatComesClose) {
  const std::vector<std::string> names{"Position", "Rotation", "Scale"};
  EXPECT_EQ(hints::nearest("Positon", names), "Position");
  EXPECT_EQ(hints::nearest("Weather", names), "");
  static constexpr std::string_view WORDS[] = {"DOOR_OPEN", "DOOR_CLOSED"};
  EXPECT_EQ(hints::nearest("DOOR_CLOESD", WORDS), "DOOR_CLOSED");
}

}
