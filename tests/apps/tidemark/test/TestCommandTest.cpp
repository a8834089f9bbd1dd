// `tidemark test`: what it prints and returns.
#include "apps/tidemark/ProgramFixture.h"

namespace tidemark {

namespace {

namespace fs = std::filesystem;

using TestCommand = Program;

TEST_F(TestCommand, PassingTestsAreCountedInTheLastLine) {
  write("a/one.script", "$ @expect triggers 1\n" + BEAT);
  write("b/two.script", "$ @expect triggers 1\n" + BEAT);
  write("b/no_test.script", BEAT);
  write("b/other.txt", "$ @expect triggers 5\n");
  const Outcome outcome = run({"test", folder(), "--jobs", "2"});
  EXPECT_EQ(outcome.code, 0) << outcome.output;
  EXPECT_EQ(outcome.output, "2 passed, 0 failed\n");
}

TEST_F(TestCommand, FilterPicksByPath) {
  write("a/one.script", "$ @expect triggers 1\n" + BEAT);
  write("b/two.script", "$ @expect triggers 9\n" + BEAT);
  EXPECT_EQ(run({"test", folder(), "--filter", "one"}).output, "1 passed, 0 failed\n");
  EXPECT_EQ(run({"test", folder(), "--filter", "two"}).code, 1);
}

TEST_F(TestCommand, JUnitFileIsWritten) {
  write("a.script", "$ @expect triggers 9\n" + BEAT);
  EXPECT_EQ(run({"test", folder(), "--junit", folder() + "/out.xml"}).code, 1);
  const std::string xml = readAll(folder() + "/out.xml");
  EXPECT_NE(xml.find("tests=\"1\" failures=\"1\" errors=\"0\""), std::string::npos) << xml;
  EXPECT_NE(xml.find("triggers 9"), std::string::npos) << xml;
}

TEST_F(TestCommand, AFailureTellsExpectedFoundAndLog) {
  expectFailure("$ @for 3.2\n" + BEAT + "$ @expect variable beats == 4\n$ @expect log INFO \"beat\" 2 times\n",
                {"failing.script:8: expectation failed", "expected: variable beats == 4", "found:    3",
                 "failing.script:9", "found:    3 such lines", "> frame   21  INFO    beat    main.script:7 Beat"});
}

struct FaultyLine {
  const char* directive;
  const char* error;
};

class FaultyDirectives : public Program, public testing::WithParamInterface<FaultyLine> {};

// What only the running host can tell is an error of the test as well.
TEST_P(FaultyDirectives, IsAnErrorWithFileAndLine) {
  expectFailure("$ @expect triggers 1\n" + BEAT + "$ @entity 100\n" + GetParam().directive + "\n",
                {"failing.script:9: error: ", GetParam().error});
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, FaultyDirectives,
    testing::Values(FaultyLine{"$ @expect 100 qsf::Nothing.X == 1", "there is no component 'qsf::Nothing'"},
                    FaultyLine{"$ @expect 100 qsf::MetadataComponent.Nme == 1", "it has"},
                    FaultyLine{"$ @expect 100 has qsf::Nothing", "there is no component"},
                    FaultyLine{"$ @entity 100", "the map has an entity 100 already"},
                    FaultyLine{"$ @entity 101 prefab unicorn", "there is no prefab 'em5/prefab/test/unicorn'"},
                    FaultyLine{"$ @entity 101 with qsf::Nothing", "there is no component"},
                    FaultyLine{"$ @entity 101 with qsf::MetadataComponent.Nme=x", "has no property 'Nme'"},
                    FaultyLine{"$ @set 100 qsf::TransformComponent.Position here", "doesn't take 'here'"},
                    FaultyLine{"$ @set 102 qsf::MetadataComponent.Name x", "there is no entity 102"},
                    FaultyLine{"$ @set 100 qsf::LinkComponent.ParentId 1", "has no qsf::LinkComponent"},
                    FaultyLine{"$ @at 0 set 102 qsf::MetadataComponent.Name x", "there is no entity 102"},
                    FaultyLine{"$ @at 0 destroy 102", "there is no entity 102"},
                    FaultyLine{"$ @at 0 select 102", "there is no entity 102"},
                    FaultyLine{"$ @at 0 press Any", "the keyboard has no button 'Any'"},
                    FaultyLine{"$ @at 0 mouse press Fourth", "the mouse has no button"},
                    FaultyLine{"$ @at 0 map x/map/y/z", "x/map/y/z"},
                    FaultyLine{"$ @at 0 push 100 em5::X", "has no qsf::ActionComponent"},
                    FaultyLine{"$ @at 0 in other variable x = 1", "no script 'other'"},
                    FaultyLine{"$ @expect message em5::Messages::GAME_STARTUP_FINISH never",
                               "nobody knows a message 'em5::Messages::GAME_STARTUP_FINISH' (did you mean "
                               "\"em5::Messages::GAME_STARTUP_FINISHED\"?)"},
                    FaultyLine{"$ @expect message my::Message never", "nobody knows a message 'my::Message'"},
                    FaultyLine{"$ @expect call em5::HintHelper::showHin never",
                               "calls of 'em5::HintHelper::showHin' are not recorded (did you mean "
                               "\"em5::HintHelper::showHint\"?)"},
                    FaultyLine{"$ @map em5/map/test/emty", "did you mean \"em5/map/test/empty\"?"},
                    FaultyLine{"$ @mod other\n$ @file project.json\n{\n$ @end", "project.json"},
                    FaultyLine{"$ @expct x", "unknown directive"}));

TEST_F(TestCommand, ATestThatRunsTooLongIsEnded) {
  const Outcome outcome =
      run({"test", write("long.script", "$ @for 86400\n$ @tick 0.00001\n$ @expect triggers 1\n" + BEAT), "--time-limit",
           "0.3"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_NE(outcome.output.find("the test ran longer than 0.3 s and was ended"), std::string::npos) << outcome.output;
}

TEST_F(TestCommand, ACrashOfATestNamesTheSignal) {
  write("long.script",
        "$ @for 100\n$ @expect triggers 1\n" + BEAT + "DoLogEntry(\"INFO\", \"" + std::string(900, 'x') + "\");\n");
  // Some 8000 bytes may be written to a file, which the test's log soon exceeds; its parent tells the end of it only.
  const Outcome outcome = runInShell("ulimit -f 16; exec \"$0\" test \"$1\" | cut -c 1-200");
  EXPECT_NE(outcome.output.find("the test's process crashed with SIGXFSZ"), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find("last lines of the log:"), std::string::npos) << outcome.output;
}

TEST_F(TestCommand, AFolderWithoutTestsIsNoSuccess) {
  write("a/no_test.script", BEAT);
  const Outcome outcome = run({"test", folder()});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_EQ(outcome.output, "tidemark test: no test found; a test is a *.script file with a $ @expect line\n");
}

TEST_F(TestCommand, AFilterThatMatchesNothingIsNoSuccess) {
  write("a/one.script", "$ @expect triggers 1\n" + BEAT);
  const Outcome outcome = run({"test", folder(), "--filter", "zwei"});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_EQ(outcome.output, "tidemark test: no test found whose path holds 'zwei'\n");
}

const std::string MISTYPED = "InitNewTrigger(\"Once\");\nInitEffects();\nDoLogEntry(\"Info\", \"x\");\nnonsense\n"
                             "$ @script helper.script\nInitNewTrigger(\"Help\", yes);\n$ @end\n$ @expect triggers 1\n";

TEST_F(TestCommand, DroppedLinesAndHintsAreNotes) {
  const std::string file = write("a.script", MISTYPED);
  const Outcome outcome = run({"test", file});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_TRUE(outcome.output.starts_with("NOTE " + file + "\n")) << outcome.output;
  for (const char* note : {":3: note: hint: \"Info\" is no word that SeverityLevel knows (did you mean \"INFO\"?)    "
                           "main.script:3 Once\n",
                           ":4: note: dropped line: Command is invalid: nonsense    main.script:4\n",
                           ":6: note: hint: \"yes\" is neither true nor false; true is used for Active    "
                           "helper.script:1 Help\n",
                           "1 passed, 0 failed\n"})
    EXPECT_NE(outcome.output.find(note), std::string::npos) << note << outcome.output;
}

TEST_F(TestCommand, NotesFailAStrictTest) {
  write("a.script", MISTYPED);
  write("b.script", BEAT + "$ @expect triggers 1\n");
  const Outcome outcome = run({"test", folder(), "--strict"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_NE(outcome.output.find("a.script:4: error: dropped line: "), std::string::npos) << outcome.output;
  EXPECT_TRUE(outcome.output.ends_with("1 passed, 1 failed\n")) << outcome.output;
}

TEST_F(TestCommand, NotesThatExpectationsNameAreNone) {
  write("a.script", MISTYPED + "$ @expect hint containing Info\n$ @expect hint containing \"neither true\" 1 times\n"
                               "$ @expect log INFO \"Command is invalid: nonsense\"\n");
  EXPECT_EQ(run({"test", folder(), "--strict"}).output, "1 passed, 0 failed\n");
}

TEST_F(TestCommand, JUnitOnStandardOutputStandsThereAlone) {
  write("a.script", "$ @expect triggers 9\n" + BEAT);
  const Outcome outcome = runInShell("\"$0\" test \"$1\" --junit - 2>/dev/null");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_TRUE(outcome.output.starts_with("<?xml")) << outcome.output;
  EXPECT_TRUE(outcome.output.ends_with("</testsuites>\n")) << outcome.output;
}

TEST_F(TestCommand, ResultsThatCannotBeWrittenAreToldBeforeTheTests) {
  write("a.script", "$ @expect triggers 9\n" + BEAT);
  const Outcome outcome = run({"test", folder(), "--junit", folder() + "/none/out.xml"});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_NE(outcome.output.find("none/out.xml can't be written"), std::string::npos) << outcome.output;
  EXPECT_EQ(outcome.output.find("FAIL"), std::string::npos) << outcome.output;
}

TEST_F(TestCommand, FailedTestsLeaveNothingBehind) {
  const fs::path temporary = fs::path(folder()) / "temporary";
  fs::create_directories(temporary);
  const std::string before = temporary.string();
  ::setenv("TMPDIR", before.c_str(), 1);
  run({"test", write("failing.script", "$ @expect triggers 9\n"), "--jobs", "1"});
  run({"test", write("long.script", "$ @for 86400\n$ @tick 0.00001\n$ @expect triggers 1\n" + BEAT), "--time-limit",
       "0.2"});
  ::unsetenv("TMPDIR");
  EXPECT_TRUE(fs::is_empty(temporary));
}

TEST_F(TestCommand, ScriptsOfTestsWriteWhereTheyAreAllowedTo) {
  const std::string target = folder() + "/target";
  fs::create_directories(target);
  write("a.script", "$ @expect file " + target +
                        "/x.json exists\nInitNewTrigger(\"t\", true, false);\nInitEffects();\n"
                        "WriteJson(\"r\", \"" +
                        target + "/x.json\");\n");
  EXPECT_EQ(run({"test", folder()}).code, 1);
  EXPECT_FALSE(fs::exists(target + "/x.json"));
  const Outcome outcome = run({"test", folder(), "--allow-write", target});
  EXPECT_EQ(outcome.output, "1 passed, 0 failed\n");
  EXPECT_TRUE(fs::exists(target + "/x.json"));
}

TEST_F(TestCommand, ACostlyPatternCostsItsTestOnly) {
  expectFailure("$ @file f\n" + std::string(30'000, 'a') + "\n$ @end\n$ @expect file f line 1 like (a+)+b\n",
                {"failing.script:4: expectation failed", "a line of 30000 characters; patterns compare 20000 at most"});
}

TEST_F(TestCommand, ABlankedEntryDoesNothing) {
  write("beat.script", "$ @for 1.5\n$ @expect variable beats == 1\n" + BEAT);
  EXPECT_EQ(run({"test", folder()}).code, 0);
  EXPECT_EQ(run({"test", folder(), "--blank", "VariableModify"}).code, 1);
  EXPECT_EQ(run({"test", folder(), "--blank", "Timer"}).code, 1);
  EXPECT_EQ(run({"test", folder(), "--blank", "Timer=true"}).code, 1);
  EXPECT_EQ(run({"test", folder(), "--blank", "SpawnObject"}).code, 0) << "it isn't there";
  EXPECT_EQ(run({"test", folder(), "--blank", "Timr"}).code, 2);
  EXPECT_EQ(run({"test", folder(), "--blank", "Timer=maybe"}).code, 2);
}

}

}
