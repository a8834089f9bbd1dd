// Runs the built program on small inputs: what it prints, and its exit codes.
#include "apps/tidemark/platform/Platform.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

struct Outcome {
  int code = -1;
  std::string output; ///< of both kinds
};

std::string readAll(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// A folder of inputs for the program, gone with the test.
class Program : public testing::Test {
protected:
  Program() : mFolder(platform::makeTemporaryDirectory()) {}
  ~Program() override { fs::remove_all(mFolder); }

  std::string write(const std::string& name, const std::string& text) const {
    const fs::path path = mFolder / "input" / name;
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
    return path.string();
  }
  std::string folder() const { return (mFolder / "input").string(); }

  static std::string program() { return (fs::path(platform::executablePath()).parent_path() / "tidemark").string(); }

  Outcome run(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), program());
    return execute(arguments);
  }

  Outcome execute(const std::vector<std::string>& arguments) const {
    const std::string output = (mFolder / "output.txt").string();
    auto process = platform::ChildProcess::start(arguments, output);
    std::optional<platform::ExitStatus> status;
    while (!(status = process.poll()))
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    EXPECT_EQ(status->signal, 0) << status->signalName;
    return {status->code, readAll(output)};
  }

  // Runs one test script, which has to fail with these texts in the program's output.
  void expectFailure(const std::string& script, const std::vector<std::string>& texts) const {
    const Outcome outcome = run({"test", write("failing.script", script)});
    EXPECT_EQ(outcome.code, 1) << outcome.output;
    EXPECT_TRUE(outcome.output.ends_with("0 passed, 1 failed\n")) << outcome.output;
    for (const std::string& text : texts)
      EXPECT_NE(outcome.output.find(text), std::string::npos) << "missing: " << text << "\n" << outcome.output;
  }

private:
  fs::path mFolder;
};

const std::string BEAT = "InitNewTrigger(\"Beat\", true, true);\nInitConditions();\nTimer(\"1\");\nInitEffects();\n"
                         "VariableModify(\"beats\", \"+\", \"1\", \"beats\");\nDoLogEntry(\"INFO\", \"beat\");\n";

TEST_F(Program, HelpIsFine) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"--help"}, {"test", "--help"}, {"run", "--help"}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_NE(outcome.output.find("Example"), std::string::npos) << outcome.output;
  }
}

TEST_F(Program, WrongUsageIsTwo) {
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{},
                                                    {"tset"},
                                                    {"test"},
                                                    {"test", "x", "--jobs", "0"},
                                                    {"run", ".", "--mode", "chess"},
                                                    {"test", "x", "--time-limit", "nan"},
                                                    {"run", ".", "--tick", "0"},
                                                    {"run", ".", "--tick", "inf"},
                                                    {"run", ".", "--seconds", "nan"},
                                                    {"run", ".", "--seconds", "-1"},
                                                    {"run", ".", "--seconds", "ten"},
                                                    {"run", ".", "--log-level", "loud"}})
    EXPECT_EQ(run(arguments).code, 2);
}

TEST_F(Program, WhatCannotBeLoadedIsThree) {
  const Outcome test = run({"test", folder() + "/nowhere"});
  EXPECT_EQ(test.code, 3);
  EXPECT_NE(test.output.find("nowhere"), std::string::npos);
  const Outcome project = run({"run", folder() + "/nowhere"});
  EXPECT_EQ(project.code, 3);
  EXPECT_NE(project.output.find("nowhere"), std::string::npos);
}

TEST_F(Program, FaultyProjectFilesNameFileAndPlace) {
  write("project.json", "{\"name\": 5}");
  const Outcome outcome = run({"run", folder()});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_NE(outcome.output.find("project.json"), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find("/name"), std::string::npos) << outcome.output;
  write("project.json", "{\"name\": \"p\", \"map\": []}");
  const Outcome map = run({"run", folder()});
  EXPECT_EQ(map.code, 3);
  EXPECT_NE(map.output.find("/map"), std::string::npos) << map.output;
}

TEST_F(Program, TheTableStaysReadable) {
  write("project.json", "{\"name\": \"p\"}");
  write("x64/tidemark/MapScript.json",
        R"({"MapScripts": {"a": {"Path": "a.script", "Mode": "MAP_STARTUP", "Maps": ["All"]}}})");
  std::string script = "InitNewTrigger(\"Long\");\nInitEffects();\nSetStringVariableToValue(\"text\", \"x\x1b[2J" +
                       std::string(100'000, 'y') + "\");\n";
  for (int i = 0; i < 500; ++i)
    script += "InitNewTrigger(\"Trigger " + std::to_string(i) + "\");\n";
  write("x64/tidemark/a.script", script);
  const Outcome outcome =
      run({"run", folder(), "--seconds", "0.1", "--log-level", "none", "--report", folder() + "/r.json"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_LT(outcome.output.size(), 30'000u);
  EXPECT_EQ(outcome.output.find('\x1b'), std::string::npos);
  EXPECT_NE(outcome.output.find("yyy..."), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find("more, which --report FILE lists"), std::string::npos) << outcome.output;
  const auto report = nlohmann::json::parse(readAll(folder() + "/r.json"));
  EXPECT_EQ(report["scripts"][0]["triggers"].size(), 501u);
}

TEST_F(Program, UnknownMapIsTold) {
  write("project.json", "{\"name\": \"p\"}");
  const Outcome outcome = run({"run", folder(), "--map", "p/map/x/y"});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_NE(outcome.output.find("p/map/x/y"), std::string::npos) << outcome.output;
}

TEST_F(Program, PassingTestsAreCountedInTheLastLine) {
  write("a/one.script", "$ @expect triggers 1\n" + BEAT);
  write("b/two.script", "$ @expect triggers 1\n" + BEAT);
  write("b/no_test.script", BEAT);
  write("b/other.txt", "$ @expect triggers 5\n");
  const Outcome outcome = run({"test", folder(), "--jobs", "2"});
  EXPECT_EQ(outcome.code, 0) << outcome.output;
  EXPECT_EQ(outcome.output, "2 passed, 0 failed\n");
}

TEST_F(Program, FilterPicksByPath) {
  write("a/one.script", "$ @expect triggers 1\n" + BEAT);
  write("b/two.script", "$ @expect triggers 9\n" + BEAT);
  EXPECT_EQ(run({"test", folder(), "--filter", "one"}).output, "1 passed, 0 failed\n");
  EXPECT_EQ(run({"test", folder(), "--filter", "two"}).code, 1);
}

TEST_F(Program, JUnitFileIsWritten) {
  write("a.script", "$ @expect triggers 9\n" + BEAT);
  EXPECT_EQ(run({"test", folder(), "--junit", folder() + "/out.xml"}).code, 1);
  const std::string xml = readAll(folder() + "/out.xml");
  EXPECT_NE(xml.find("tests=\"1\" failures=\"1\" errors=\"0\""), std::string::npos) << xml;
  EXPECT_NE(xml.find("triggers 9"), std::string::npos) << xml;
}

TEST_F(Program, AFailureTellsExpectedFoundAndLog) {
  expectFailure("$ @for 3.2\n" + BEAT + "$ @expect variable beats == 4\n$ @expect log INFO \"beat\" 2 times\n",
                {"failing.script:8: expectation failed", "expected: variable beats == 4", "found:    3",
                 "failing.script:9", "found:    3 such lines", "> frame   21  INFO    beat"});
}

struct FailingExpectation {
  const char* expectation;
  const char* found;
};

class FailingProgram : public Program, public testing::WithParamInterface<FailingExpectation> {};

TEST_P(FailingProgram, ToldWithWhatWasFound) {
  expectFailure(BEAT +
                    "$ @entity 100 at 1 2 3\n$ @at 0 string s = yes\n$ @at 0 bool b = true\n$ @at 0 list l = 100 5\n$ "
                    "@at 0 variable n = nan\n$ @at 0 variable §g = 2\n$ @expect " +
                    GetParam().expectation + "\n",
                {"failing.script:13", GetParam().found});
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, FailingProgram,
    testing::Values(
        FailingExpectation{"variable n == 0", "found:    nan"},
        FailingExpectation{"variable missing == 0", "no such entry; the local store holds"},
        FailingExpectation{"variable §missing == 0", "the global store holds \"§g\""},
        FailingExpectation{"variable §g != 2", "found:    2"},
        FailingExpectation{"string s == no", "found:    \"yes\""},
        FailingExpectation{"bool b == false", "found:    true"},
        FailingExpectation{"list l == 5 100", "found:    100 5"}, FailingExpectation{"list l ==", "found:    100 5"},
        FailingExpectation{"list l holds 100", "found:    100 5"},
        FailingExpectation{"list l contains 6", "found:    100 5"},
        FailingExpectation{"list l size 3", "found:    100 5"}, FailingExpectation{"list m exists", "no such entry"},
        FailingExpectation{"no variable n", "there is such an entry"},
        FailingExpectation{"no list l", "there is such an entry"},
        FailingExpectation{"strings x == a", "no such entry"}, FailingExpectation{"json x a.b == 1", "no such entry"},
        FailingExpectation{"store strings == t", "found:    \"s\""},
        FailingExpectation{"trigger Beat inactive", "found:    active"},
        FailingExpectation{"trigger Beat single", "found:    looped"},
        FailingExpectation{"trigger Beat fulfilled 1", "found:    0"},
        FailingExpectation{"trigger Beat required 2", "found:    1"},
        FailingExpectation{"trigger Beat conditions 2", "found:    1"},
        FailingExpectation{"trigger Beat effects 1", "found:    2"},
        FailingExpectation{"trigger Beat blocks 1", "found:    0"},
        FailingExpectation{"trigger Beat fired 2 times", "found:    fired 0 times"},
        FailingExpectation{"trigger Beat multiplayer 1", "found:    0"},
        FailingExpectation{"trigger Beat player 4", "found:    "},
        FailingExpectation{"trigger Beat global \"x\"", "found:    \"test/main.script/Beat\""},
        FailingExpectation{"trigger Beat hash 1", "found:    "},
        FailingExpectation{"trigger Beat lastTimeActive 5", "found:    0"},
        FailingExpectation{"trigger Beat#2 active", "no such trigger; script 'main' has \"Beat\""},
        FailingExpectation{"triggers 2", "found:    1"}, FailingExpectation{"script main stopped", "found:    running"},
        FailingExpectation{"script other running", "no script 'other'"},
        FailingExpectation{"script main#2 running", "found:    stopped"},
        FailingExpectation{"scripts running 2", "found:    1"},
        FailingExpectation{"in other variable n == 1", "no script 'other'"},
        FailingExpectation{"log ERROR \"beat\"", "0 such lines"},
        FailingExpectation{"log ANY containing Map never", "such lines"},
        FailingExpectation{"no other log above DEBUG", "found:    INFO"},
        FailingExpectation{"after shutdown log ANY \"DoShutdown Finished\" never", "such lines"},
        FailingExpectation{"log \"DoShutdown Started\" before \"x\"", "no line \"DoShutdown Started\""},
        FailingExpectation{"message em5::Messages::GAME_STARTUP_FINISHED never", "emitted 1 times"},
        FailingExpectation{"call em5::HintHelper::showHint", "0 such calls"},
        FailingExpectation{"entity 100 missing", "it exists"}, FailingExpectation{"entity 101 exists", "it is missing"},
        FailingExpectation{"entities 2", "found:    1"}, FailingExpectation{"100 at 1 2 3.1", "found:    at 1 2 3"},
        FailingExpectation{"101 at 1 2 3", "there is no entity 101"},
        FailingExpectation{"100 parent 101", "found:    no parent"},
        FailingExpectation{"100 has qsf::LinkComponent", "it lacks it"},
        FailingExpectation{"100 lacks qsf::TransformComponent", "it has it"},
        FailingExpectation{"100 qsf::MetadataComponent.Name == x", "found:    \"\""},
        FailingExpectation{"100 qsf::LinkComponent.ParentId == 1", "has no qsf::LinkComponent"},
        FailingExpectation{"selection == 100", "nothing is selected"},
        FailingExpectation{"entity l[2] exists", "list 'l' holds 2 ids"},
        FailingExpectation{"entity m[0] exists", "no list 'm'"}));

struct FaultyLine {
  const char* directive;
  const char* error;
};

class FaultyProgram : public Program, public testing::WithParamInterface<FaultyLine> {};

// What only the running host can tell is an error of the test as well.
TEST_P(FaultyProgram, IsAnErrorWithFileAndLine) {
  expectFailure("$ @expect triggers 1\n" + BEAT + "$ @entity 100\n" + GetParam().directive + "\n",
                {"failing.script:9: error: ", GetParam().error});
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, FaultyProgram,
    testing::Values(FaultyLine{"$ @expect 100 qsf::Nothing.X == 1", "there is no component 'qsf::Nothing'"},
                    FaultyLine{"$ @expect 100 qsf::MetadataComponent.Nme == 1", "it has"},
                    FaultyLine{"$ @expect 100 has qsf::Nothing", "there is no component"},
                    FaultyLine{"$ @entity 100", "the map has an entity 100 already"},
                    FaultyLine{"$ @entity 0", "already"},
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
                    FaultyLine{"$ @expct x", "unknown directive"}));

TEST_F(Program, ATestThatRunsTooLongIsEnded) {
  const Outcome outcome =
      run({"test", write("long.script", "$ @for 86400\n$ @tick 0.00001\n$ @expect triggers 1\n" + BEAT), "--time-limit",
           "0.3"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_NE(outcome.output.find("the test ran longer than 0.3 s and was ended"), std::string::npos) << outcome.output;
}

TEST_F(Program, ACrashOfATestNamesTheSignal) {
  const std::string script = write("endless.script", "$ @for 86400\n$ @tick 0.00001\n$ @expect triggers 1\n" + BEAT);
  // The limit of processor time hits the test's process only: its parent sleeps.
  const Outcome outcome = execute({"/bin/sh", "-c", "ulimit -S -t 1; exec \"$0\" test \"$1\"", program(), script});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_NE(outcome.output.find("the test's process crashed with SIGXCPU"), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find("last lines of the log:"), std::string::npos) << outcome.output;
}

TEST_F(Program, FailedTestsLeaveNothingBehind) {
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

// A project of one script for `run`.
void writeProject(const std::function<std::string(const std::string&, const std::string&)>& write,
                  const std::string& script) {
  write("project.json", R"({"name": "p"})");
  write("x64/tidemark/MapScript.json",
        R"({"MapScripts": {"main": {"Path": "main.script", "Mode": "MAP_STARTUP_SIMULATION", "Maps": ["All"]}}})");
  write("x64/tidemark/main.script", script);
}

TEST_F(Program, RunPrintsTheTableAndWritesTheReport) {
  writeProject([this](const auto& name, const auto& text) { return write(name, text); }, BEAT);
  const Outcome outcome = run({"run", folder(), "--seconds", "3.2", "--report", folder() + "/report.json"});
  EXPECT_EQ(outcome.code, 0) << outcome.output;
  EXPECT_NE(outcome.output.find("INFO    beat"), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find("Beat     3      active, looped"), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find("variable  beats  3"), std::string::npos) << outcome.output;
  const auto report = nlohmann::json::parse(readAll(folder() + "/report.json"));
  EXPECT_EQ(report["frames"], 64);
  EXPECT_EQ(report["map"], "em5/map/test/empty");
  EXPECT_EQ(report["scripts"][0]["key"], "main");
  EXPECT_EQ(report["scripts"][0]["triggers"][0]["fired"], 3);
  EXPECT_EQ(report["scripts"][0]["stores"]["variables"][0]["value"], 3.0);
}

TEST_F(Program, AScriptThatCannotBeUsedMakesTheRunFail) {
  writeProject([this](const auto& name, const auto& text) { return write(name, text); }, "Timer(\"1\");\n" + BEAT);
  const Outcome outcome = run({"run", folder(), "--seconds", "1"});
  EXPECT_EQ(outcome.code, 1) << outcome.output;
  EXPECT_NE(outcome.output.find("1 fault, the last: The script"), std::string::npos) << outcome.output;
}

TEST_F(Program, EqualRunsGiveEqualOutput) {
  writeProject([this](const auto& name, const auto& text) { return write(name, text); },
               BEAT + "SetVariableRandom(\"1\", \"1000\", \"die\");\nDoLogEntry(\"INFO\", \"die\");\n");
  const Outcome first = run({"run", folder(), "--seed", "3", "--log-level", "trace"});
  EXPECT_EQ(first.output, run({"run", folder(), "--seed", "3", "--log-level", "trace"}).output);
  EXPECT_NE(first.output, run({"run", folder(), "--seed", "4", "--log-level", "trace"}).output);
}

TEST_F(Program, LogLinesCanBeJson) {
  writeProject([this](const auto& name, const auto& text) { return write(name, text); }, BEAT);
  const Outcome outcome = run({"run", folder(), "--seconds", "1.2", "--log-format", "jsonl"});
  std::istringstream lines(outcome.output);
  std::string line;
  std::getline(lines, line);
  EXPECT_TRUE(nlohmann::json::accept(line)) << line;
  EXPECT_NE(outcome.output.find("\"message\":\"beat\""), std::string::npos) << outcome.output;
}

}

}
