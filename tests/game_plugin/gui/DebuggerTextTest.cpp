#include "game_plugin/gui/DebuggerText.h"

#include "Rocket/Core.h"
#include "game_plugin/scenario/LogCapture.h"
#include "game_plugin/scenario/ScriptFixture.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>

using namespace script;

namespace {

const char* const TWO_OF_THREE =
    "InitNewTrigger(\"t\",true,true);\nInitConditions(2);\nCompareValues(\"1\",\"==\",\"1\");\n"
    "CompareValues(\"1\",\"==\",\"2\");\nCompareValues(\"1\",\"==\",\"3\");\n"
    "InitEffects();\nSetVariable(\"a\",\"1\");";

/// Texts of a script whose file can't be read any more.
EntryTexts namesOnly(const Script& script) { return EntryTexts(script.document->program); }

std::size_t count(const std::string& text, const std::string& part) {
  std::size_t found = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++found;
  return found;
}

TEST(DebuggerText, MarksOfRmlAreWrittenAsEntities) {
  EXPECT_EQ(escapeRml("a<b>&\"c\" §"), "a&lt;b&gt;&amp;&quot;c&quot; §");
  EXPECT_EQ(escapeRml(""), "");
}

TEST(DebuggerText, TheFirstConditionThatDoesNotCountHasFailed) {
  const LogCapture log;
  Script script(TWO_OF_THREE);
  script.tick();
  const std::string rml = triggersRml(*script.document, namesOnly(script), "t");
  const std::size_t active = rml.find("class=\"active\">CompareValues");
  const std::size_t fail = rml.find("class=\"fail\">CompareValues");
  const std::size_t inactive = rml.find("class=\"inactive\">CompareValues");
  ASSERT_NE(inactive, std::string::npos) << rml;
  EXPECT_LT(active, fail);
  EXPECT_LT(fail, inactive);
}

TEST(DebuggerText, NothingHasFailedWhereEnoughConditionsHeld) {
  const LogCapture log;
  Script script("InitNewTrigger(\"t\",true,true);\nInitConditions(1);\nCompareValues(\"1\",\"==\",\"1\");\n"
                "CompareValues(\"1\",\"==\",\"2\");");
  script.tick();
  const std::string rml = triggersRml(*script.document, namesOnly(script), "t");
  EXPECT_EQ(count(rml, "\"fail\""), 0u);
  EXPECT_EQ(count(rml, "class=\"inactive\">CompareValues"), 1u);
}

TEST(DebuggerText, OnlyTheOpenTriggerShowsItsLines) {
  const LogCapture log;
  Script script(std::string(TWO_OF_THREE) +
                "\nInitNewTrigger(\"u\",false,false);\nInitEffects();\nSetVariable(\"b\",\"1\");");
  const std::string closed = triggersRml(*script.document, namesOnly(script), "-1");
  EXPECT_EQ(count(closed, "Conditions:<br/>"), 0u);
  EXPECT_EQ(count(closed, "class=\"inactive script\">u "), 1u);
  EXPECT_EQ(count(triggersRml(*script.document, namesOnly(script), "u"), "Conditions:<br/>"), 1u);
}

TEST(DebuggerText, AnEntryStandsAsItsFileWritesIt) {
  const LogCapture log;
  const std::string path = testing::TempDir() + "DebuggerTextTest" + std::to_string(getpid()) + ".script";
  std::ofstream(path)
      << "InitNewTrigger(\"t\",true,true);\nInitConditions();\n\t!CompareValues(\"1\" , \"==\", svar(x));\n"
         "InitEffects();\n  SetVariable(\"a(b)\", \"1\");\n";
  const auto program = ScriptParser().parse(path, "mod/s.script");
  const EntryTexts texts(program);
  EXPECT_EQ(texts.at(3, "CompareValues"), "!CompareValues(\"1\" , \"==\", svar(x))");
  EXPECT_EQ(texts.at(5, "SetVariable"), "SetVariable(\"a(b)\", \"1\")");
  EXPECT_EQ(texts.at(5, "SetName"), "SetName") << "the line is another one now";
  EXPECT_EQ(texts.at(9, "SetVariable"), "SetVariable");
  std::filesystem::remove(path);
  EXPECT_EQ(EntryTexts(program).at(5, "SetVariable"), "SetVariable");
}

TEST(DebuggerText, WhatHasNoEndIsCutWhereADocumentTakesIt) {
  const LogCapture log;
  Script script("InitNewTrigger(\"t\",true,true);");
  for (std::uint64_t id = 1; id <= 30000; ++id)
    script.handler->AddToEntityList("many", id);
  script.handler->SetStringVariable("long", std::string(3000000, '<'));
  const std::string rml = variablesRml(*script.handler);
  EXPECT_TRUE(Rocket::Core::IsReadable(rml));
  EXPECT_LT(rml.size(), 1100000u);
  EXPECT_EQ(rml.substr(rml.size() - 3), "...");
  EXPECT_EQ(count(rml, ">1</span> | <span"), 1u);
  EXPECT_LT(count(rml, "<span"), 6000u);
}

TEST(DebuggerText, ThousandsOfTriggersAndLinesAreReadable) {
  const LogCapture log;
  std::string text;
  for (int i = 0; i < 8000; ++i)
    text += "InitNewTrigger(\"t\",true,true);\n";
  text += "InitNewTrigger(\"open\",true,true);\nInitEffects();\n";
  Script triggers(text);
  EXPECT_TRUE(Rocket::Core::IsReadable(triggersRml(*triggers.document, namesOnly(triggers), "open")));
  text = "InitNewTrigger(\"open\",true,true);\nInitEffects();\n";
  for (int i = 0; i < 12000; ++i)
    text += "SetVariable(\"a\",\"1\");\n";
  Script lines(text);
  const std::string rml = triggersRml(*lines.document, namesOnly(lines), "open");
  EXPECT_TRUE(Rocket::Core::IsReadable(rml));
  EXPECT_GT(count(rml, "SetVariable"), 100u);
}

TEST(DebuggerText, LinesOfALogStandBelowEachOther) {
  EXPECT_EQ(playerLogRml("Head: <br/><br/>", {"a<b\n", "c"}), "Head: <br/><br/>a&lt;b\n<br/>c<br/>");
}

}
