// `tidemark run`: tables, reports, faults of its inputs.
#include "apps/tidemark/ProgramFixture.h"

#include <nlohmann/json.hpp>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

using RunCommand = Program;

TEST_F(RunCommand, FaultyProjectFilesNameFileAndPlace) {
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

TEST_F(RunCommand, TheTableStaysReadable) {
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

TEST_F(RunCommand, UnknownMapsAreToldWithNearOnes) {
  write("project.json", "{\"name\": \"p\"}");
  write("map/sea/coast.json", "{}");
  const Outcome near = run({"run", folder(), "--map", "p/map/sea/cost"});
  EXPECT_EQ(near.code, 3);
  EXPECT_NE(near.output.find("no mounted project has a map 'p/map/sea/cost' (did you mean \"p/map/sea/coast\"?)"),
            std::string::npos)
      << near.output;
  const Outcome far = run({"run", folder(), "--map", "mountains"});
  EXPECT_EQ(far.code, 3);
  EXPECT_NE(far.output.find("; there are em5/map/test/empty, em5/map/test/layers, "), std::string::npos) << far.output;
  EXPECT_NE(far.output.find(", p/map/sea/coast\n"), std::string::npos) << far.output;
}

TEST_F(RunCommand, ALanguageWithoutTextsIsWrongUsage) {
  writeProject(BEAT);
  const Outcome outcome = run({"run", folder(), "--language", "xx"});
  EXPECT_EQ(outcome.code, 2);
  EXPECT_NE(outcome.output.find("no project has texts in 'xx'; there are de, en"), std::string::npos) << outcome.output;
  write("text/xx/a.json", "{}");
  EXPECT_EQ(run({"run", folder(), "--language", "xx", "--seconds", "0"}).code, 0);
}

TEST_F(RunCommand, RunPrintsTheTableAndWritesTheReport) {
  writeProject(BEAT);
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

TEST_F(RunCommand, AScriptThatCannotBeUsedMakesTheRunFail) {
  writeProject("Timer(\"1\");\n" + BEAT);
  const Outcome outcome = run({"run", folder(), "--seconds", "1"});
  EXPECT_EQ(outcome.code, 1) << outcome.output;
  EXPECT_NE(outcome.output.find("1 fault, the last: The script"), std::string::npos) << outcome.output;
}

TEST_F(RunCommand, EqualRunsGiveEqualOutput) {
  writeProject(BEAT + "SetVariableRandom(\"1\", \"1000\", \"die\");\nDoLogEntry(\"INFO\", \"die\");\n");
  const Outcome first = run({"run", folder(), "--seed", "3", "--log-level", "trace"});
  EXPECT_EQ(first.output, run({"run", folder(), "--seed", "3", "--log-level", "trace"}).output);
  EXPECT_NE(first.output, run({"run", folder(), "--seed", "4", "--log-level", "trace"}).output);
}

TEST_F(RunCommand, LogLinesCanBeJson) {
  writeProject(BEAT);
  const Outcome outcome = run({"run", folder(), "--seconds", "1.2", "--log-format", "jsonl"});
  std::istringstream lines(outcome.output);
  std::string line;
  std::getline(lines, line);
  EXPECT_TRUE(nlohmann::json::accept(line)) << line;
  EXPECT_NE(outcome.output.find("\"message\":\"beat\""), std::string::npos) << outcome.output;
}

TEST_F(RunCommand, TheLogIsUtf8WhateverScriptsWrite) {
  writeProject("InitNewTrigger(\"Once\");\nInitEffects();\nDoLogEntry(\"INFO\", \"gr\xFC\xDF \x80\");\n");
  for (const char* format : {"text", "jsonl"})
    EXPECT_NE(run({"run", folder(), "--seconds", "0.1", "--log-format", format}).output.find("grüß €"),
              std::string::npos)
        << format;
}

TEST_F(RunCommand, AReportOnStandardOutputStandsThereAlone) {
  writeProject(BEAT);
  const Outcome outcome = runInShell("\"$0\" run \"$1\" --seconds 1.2 --report - 2>/dev/null");
  EXPECT_EQ(outcome.code, 0);
  ASSERT_TRUE(nlohmann::json::accept(outcome.output)) << outcome.output;
  EXPECT_EQ(nlohmann::json::parse(outcome.output)["frames"], 24);
}

TEST_F(RunCommand, AReportThatCannotBeWrittenIsToldBeforeTheRun) {
  writeProject(BEAT);
  for (const std::string& path : {folder() + "/none/report.json", folder()}) {
    const Outcome outcome = run({"run", folder(), "--report", path});
    EXPECT_EQ(outcome.code, 3);
    EXPECT_TRUE(outcome.output.starts_with("tidemark run: --report: " + path + " can't be written: "))
        << outcome.output;
  }
}

TEST_F(RunCommand, AReportOfARunThatFailsLeavesNoFile) {
  writeProject(BEAT);
  EXPECT_EQ(run({"run", folder(), "--map", "none", "--report", folder() + "/report.json"}).code, 3);
  EXPECT_FALSE(fs::exists(folder() + "/report.json"));
}

TEST_F(RunCommand, ATableThatCannotBeWrittenIsAnError) {
  writeProject(BEAT);
  const Outcome outcome = runInShell("\"$0\" run \"$1\" --log-level none >/dev/full");
  EXPECT_EQ(outcome.code, 3);
  EXPECT_EQ(outcome.output, "tidemark: standard output can't be written: No space left on device\n");
}

TEST_F(RunCommand, TheWorkingDirectoryIsTheFirstProjectsFolder) {
  writeProject("InitNewTrigger(\"Once\");\nInitEffects();\nStartScenario(\"x64/tidemark/helper.script\");\n");
  write("x64/tidemark/helper.script", "InitNewTrigger(\"Help\");\nInitEffects();\nDoLogEntry(\"INFO\", \"here\");\n");
  const Outcome outcome = runInShell("cd \"$1/..\" && \"$0\" run input --seconds 1 --report report.json && ls");
  EXPECT_EQ(outcome.code, 0) << outcome.output;
  EXPECT_NE(outcome.output.find("INFO    here"), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find("report.json"), std::string::npos) << outcome.output;
}

TEST_F(RunCommand, ARequestToEndEndsTheRunWithItsTable) {
  writeProject("InitNewTrigger(\"Once\");\nInitEffects();\nDoLogEntry(\"WARNING\", \"begun\");\n");
  for (const std::string signal : {"INT", "TERM"}) {
    // The run would go on for days; it is ended when its first line has been seen.
    const Outcome outcome =
        runInShell("{ sh -c 'echo $$; exec \"$0\" run \"$1\" --seconds 10000000 --log-level warning 2>&1' \"$0\" "
                   "\"$1\"; echo \"code $?\"; } | { read process; read line; kill -" +
                   signal + " $process; cat; }");
    EXPECT_NE(outcome.output.find("script p/main"), std::string::npos) << outcome.output;
    EXPECT_TRUE(outcome.output.ends_with("code 0\n")) << outcome.output;
  }
}

TEST_F(RunCommand, LinesOfScriptsTellTheirPlace) {
  writeProject(BEAT);
  const Outcome text = run({"run", folder(), "--seconds", "1.2"});
  EXPECT_NE(text.output.find("INFO    beat    main.script:6 Beat\n"), std::string::npos) << text.output;
  EXPECT_EQ(text.output.find("DoShutdown Started "), std::string::npos) << text.output;
}

const std::string MISTYPED = "InitNewTrigger(\"Once\");\nInitEffects();\nDoLogEntry(\"Info\", \"x\");\n";

TEST_F(RunCommand, HintsAreToldAndReported) {
  writeProject(MISTYPED);
  const Outcome outcome = run({"run", folder(), "--seconds", "0.1", "--report", folder() + "/report.json"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_NE(outcome.output.find("1 hint\n    main.script:3 Once  \"Info\" is no word that SeverityLevel knows (did you "
                                "mean \"INFO\"?)\n"),
            std::string::npos)
      << outcome.output;
  const auto hints = nlohmann::json::parse(readAll(folder() + "/report.json"))["hints"];
  ASSERT_EQ(hints.size(), 1u);
  EXPECT_EQ(hints[0]["script"], "main.script");
  EXPECT_EQ(hints[0]["line"], 3);
  EXPECT_EQ(hints[0]["trigger"], "Once");
  EXPECT_EQ(hints[0]["nearest"], "INFO");
  EXPECT_EQ(hints[0]["count"], 1);
}

TEST_F(RunCommand, WhatThePlayerSawIsToldAndReported) {
  writeProject("InitNewTrigger(\"Once\");\nInitEffects();\nSendHint(\"Mind the step\");\n");
  const Outcome outcome = run({"run", folder(), "--seconds", "1", "--report", folder() + "/report.json"});
  EXPECT_NE(outcome.output.find("hints that were shown\n    1 time  "), std::string::npos) << outcome.output;
  const auto report = nlohmann::json::parse(readAll(folder() + "/report.json"));
  ASSERT_EQ(report["shownHints"].size(), 1u);
  EXPECT_EQ(report["shownHints"][0]["text"], "Mind the step");
  EXPECT_EQ(report["hints"].size(), 0u);
  EXPECT_EQ(report["audio"]["playing"], 0);
}

TEST_F(RunCommand, TheEditorsStepsAreToldAndReported) {
  writeProject("InitNewTrigger(\"Plant\");\nInitEffects();\nEditor_CreateUnit(\"em5/prefab/test/tree\", \"trees\", "
               "\"2\");\n");
  write("x64/tidemark/MapScript.json",
        R"({"MapScripts": {"main": {"Path": "main.script", "Mode": "EDITOR_STARTUP", "Maps": ["All"]}}})");
  const Outcome outcome = run({"run", folder(), "--editor", "--seconds", "0.5", "--report", folder() + "/report.json"});
  EXPECT_EQ(outcome.code, 0) << outcome.output;
  EXPECT_NE(
      outcome.output.find("\n2 operations in the editor\n    1  Create entity 2 \"tree\" on layer \"Base\"\n    2  "
                          "Create entity 3 \"tree\" on layer \"Base\"\n"),
      std::string::npos)
      << outcome.output;
  const auto report = nlohmann::json::parse(readAll(folder() + "/report.json"));
  ASSERT_EQ(report["operations"].size(), 2u);
  EXPECT_EQ(report["operations"][1]["text"], "Create entity 3 \"tree\" on layer \"Base\"");
  EXPECT_EQ(report["operations"][1]["creates"][0]["entity"], 3);
  EXPECT_EQ(report["operations"][1]["undone"], false);
}

TEST_F(RunCommand, HintsCanBeFaultsOrNotAskedFor) {
  writeProject(MISTYPED);
  EXPECT_EQ(run({"run", folder(), "--seconds", "0.1", "--strict"}).code, 1);
  const Outcome silent = run({"run", folder(), "--seconds", "0.1", "--no-hints"});
  EXPECT_EQ(silent.code, 0);
  EXPECT_EQ(silent.output.find("hint"), std::string::npos) << silent.output;
  EXPECT_EQ(run({"run", folder(), "--strict", "--no-hints"}).code, 2);
  writeProject(BEAT);
  EXPECT_EQ(run({"run", folder(), "--seconds", "0.1", "--strict"}).code, 0);
}

TEST_F(RunCommand, DroppedLinesAreFaults) {
  writeProject("InitNewTrigger(\"Once\");\nInitEffects();\nSetVariabel(\"a\", \"1\");\nnonsense\n");
  const Outcome outcome = run({"run", folder(), "--seconds", "0.1", "--report", folder() + "/report.json"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_NE(
      outcome.output.find("2 dropped lines\n    main.script:3:1  Effect of type: SetVariabel can't be found.\n    "
                          "main.script:4:1  Command is invalid: nonsense\n"),
      std::string::npos)
      << outcome.output;
  const auto dropped = nlohmann::json::parse(readAll(folder() + "/report.json"))["droppedLines"];
  ASSERT_EQ(dropped.size(), 2u);
  EXPECT_EQ(dropped[0]["line"], 3);
  EXPECT_EQ(dropped[0]["reason"], "Effect of type: SetVariabel can't be found.");
}

TEST_F(RunCommand, AScriptThatStoppedOrNeverLoadedStaysInTheTable) {
  writeProject("InitNewTrigger(\"Start\");\nInitEffects();\nStartScenario(\"x64/tidemark/helper.script\");\n"
               "InitNewTrigger(\"Stop\");\nInitConditions();\nTimer(\"0.5\");\nInitEffects();\n"
               "StopScenario(\"x64/tidemark/helper.script\");\n");
  write("x64/tidemark/helper.script", "InitNewTrigger(\"Help\");\n");
  write("x64/tidemark/MapScript.json",
        R"({"MapScripts": {"main": {"Path": "main.script", "Mode": "MAP_STARTUP", "Maps": ["All"]},
                           "gone": {"Path": "gone.script", "Mode": "MAP_STARTUP", "Maps": ["All"]}}})");
  const Outcome outcome = run({"run", folder(), "--seconds", "1", "--report", folder() + "/report.json"});
  EXPECT_NE(outcome.output.find("script p/gone  "), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find("script x64/tidemark/helper.script  TEMPORARY, stopped by StopScenario, main.script:8"),
            std::string::npos)
      << outcome.output;
  const auto ended = nlohmann::json::parse(readAll(folder() + "/report.json"))["ended"];
  ASSERT_EQ(ended.size(), 2u);
  EXPECT_EQ(ended[0]["key"], "gone");
  EXPECT_EQ(ended[1]["key"], "x64/tidemark/helper.script");
}

TEST_F(RunCommand, AListOfScriptsThatCannotBeReadCannotBeLoaded) {
  writeProject(BEAT);
  const std::string file = write("x64/tidemark/MapScript.json", "{\"MapScripts\": {");
  const Outcome outcome = run({"run", folder()});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_NE(outcome.output.find("\ntidemark run: " + file), std::string::npos) << outcome.output;
}

class WritingScripts : public Program {
protected:
  Outcome runWriting(const std::string& path, std::vector<std::string> options = {}) const {
    writeProject("InitNewTrigger(\"t\", true, false);\nInitEffects();\nWriteJson(\"r\", \"inside.json\");\n"
                 "WriteJson(\"r\", \"" +
                 path + "\");\n");
    fs::create_directories(outside());
    options.insert(options.begin(), {"run", folder(), "--seconds", "0.1"});
    return run(options);
  }
  std::string outside() const { return folder() + ".outside"; }
  ~WritingScripts() override = default;
};

TEST_F(WritingScripts, WriteBelowTheWorkingDirectoryOnly) {
  const Outcome outcome = runWriting("../input.outside/x.json");
  EXPECT_EQ(outcome.code, 1) << outcome.output;
  EXPECT_NE(outcome.output.find("ERROR   Fault in p/main.script, line 4, WriteJson: ../input.outside/x.json can't be "
                                "written: nothing may be written to " +
                                fs::canonical(outside()).string() +
                                "/x.json; scripts write below the working "
                                "directory only, unless --allow-write DIR names a folder more    main.script:4 t"),
            std::string::npos)
      << outcome.output;
  EXPECT_TRUE(fs::exists(folder() + "/inside.json"));
  EXPECT_FALSE(fs::exists(outside() + "/x.json"));
}

TEST_F(WritingScripts, WriteInFoldersThatAreAllowed) {
  fs::create_directories(outside());
  const Outcome outcome =
      runWriting("../input.outside/x.json", {"--allow-write", "/nonsense", "--allow-write", outside()});
  EXPECT_EQ(outcome.code, 2) << "each folder must be there";
  EXPECT_NE(outcome.output.find("there is no folder '/nonsense'"), std::string::npos) << outcome.output;
  EXPECT_EQ(runWriting("../input.outside/x.json", {"--allow-write", folder(), "--allow-write", outside()}).code, 0);
  EXPECT_EQ(readAll(outside() + "/x.json"), "{\n}\n");
}

TEST_F(WritingScripts, TheProgramsOwnReportGoesAnywhere) {
  fs::create_directories(outside());
  EXPECT_EQ(runWriting("x.json", {"--report", outside() + "/report.json"}).code, 0);
  EXPECT_NE(readAll(outside() + "/report.json").find("\"frames\""), std::string::npos);
}

TEST_F(RunCommand, TheReportTellsWhatBecameOfMissionsAndWhy) {
  writeProject(
      "InitNewTrigger(\"Start\", true, false);\nInitEffects();\n"
      "StartScriptedEvent(\"1\", \"Won\");\n"
      "CreateObjective(\"1\", \"Count (%d / %d)\", \"count\", \"2\");\n"
      "ObjectiveSetCurrentNumber(\"1\", \"count\", \"2\");\nAllowScriptedEventToFinish(\"1\");\n"
      "StartScriptedEvent(\"2\", \"Lost\");\n"
      "CreateObjective(\"2\", \"Lives lost: %d\", \"lives\", \"1\", \"FAIL\");\n"
      "CreateObjective(\"2\", \"Never\", \"never\", \"9\");\n"
      "ObjectiveSetCurrentNumber(\"2\", \"lives\", \"1\");\nAllowScriptedEventToFinish(\"2\");\n"
      "StartScriptedEvent(\"3\", \"Open\");\nCreateObjective(\"3\", \"Maybe\", \"maybe\", \"1\", \"OPTIONAL\");\n");
  const Outcome outcome = run({"run", folder(), "--seconds", "1", "--report", folder() + "/r.json"});
  EXPECT_EQ(outcome.code, 0) << outcome.output;
  EXPECT_NE(outcome.output.find("event \"Won\"  succeeded after"), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find("event \"Lost\"  failed after"), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find(": Lives lost: 1\n"), std::string::npos) << outcome.output;
  const auto events = nlohmann::json::parse(readAll(folder() + "/r.json"))["events"];
  ASSERT_EQ(events.size(), 3u);
  EXPECT_EQ(events[0]["name"], "Won");
  EXPECT_EQ(events[0]["class"], "script::ScenarioEvent");
  EXPECT_EQ(events[0]["state"], "succeeded");
  EXPECT_EQ(events[0]["reason"], "all required objectives are reached");
  const nlohmann::json count = {{"id", "count"}, {"text", "Count (2 / 2)"}, {"kind", "required"}, {"current", 2},
                                {"needed", 2},   {"reached", true}};
  EXPECT_EQ(events[0]["objectives"], nlohmann::json::array({count}));
  EXPECT_EQ(events[1]["state"], "failed");
  EXPECT_EQ(events[1]["reason"], "Lives lost: 1");
  EXPECT_EQ(events[1]["objectives"][0]["kind"], "fail");
  EXPECT_EQ(events[1]["objectives"][1]["reached"], false);
  EXPECT_EQ(events[2]["state"], "running");
  EXPECT_EQ(events[2]["objectives"][0]["kind"], "optional");
}

}

}
