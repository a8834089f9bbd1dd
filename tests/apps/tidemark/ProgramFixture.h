#pragma once
#include "apps/tidemark/platform/Platform.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace tidemark {

/// Runs the built program on small inputs: what it prints, and its exit codes. The inputs stand in a folder that goes
/// with the test.
class Program : public testing::Test {
protected:
  struct Outcome {
    int code = -1;
    std::string output; ///< of both kinds
  };

  Program() : mFolder(platform::makeTemporaryDirectory()) {}
  ~Program() override { std::filesystem::remove_all(mFolder); }

  std::string write(const std::string& name, const std::string& text) const {
    const std::filesystem::path path = mFolder / "input" / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
    return path.string();
  }
  std::string folder() const { return (mFolder / "input").string(); }

  /// A project of one script, `main`, for `run`.
  void writeProject(const std::string& script) const {
    write("project.json", R"({"name": "p"})");
    write("x64/tidemark/MapScript.json",
          R"({"MapScripts": {"main": {"Path": "main.script", "Mode": "MAP_STARTUP_SIMULATION", "Maps": ["All"]}}})");
    write("x64/tidemark/main.script", script);
  }

  static std::string readAll(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }

  static std::string program() {
    return (std::filesystem::path(platform::executablePath()).parent_path() / "tidemark").string();
  }

  Outcome run(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), program());
    return execute(arguments);
  }
  /// A command line for the shell, in which $0 is the program and $1 the folder of inputs.
  Outcome runInShell(const std::string& command) const {
    return execute({"/bin/sh", "-c", command, program(), folder()});
  }

  /// Runs one test script, which has to fail with these texts in the program's output.
  void expectFailure(const std::string& script, const std::vector<std::string>& texts) const {
    const Outcome outcome = run({"test", write("failing.script", script)});
    EXPECT_EQ(outcome.code, 1) << outcome.output;
    EXPECT_TRUE(outcome.output.ends_with("0 passed, 1 failed\n")) << outcome.output;
    for (const std::string& text : texts)
      EXPECT_NE(outcome.output.find(text), std::string::npos) << "missing: " << text << "\n" << outcome.output;
  }

private:
  Outcome execute(const std::vector<std::string>& arguments) const {
    const std::string output = (mFolder / "output.txt").string();
    auto process = platform::ChildProcess::start(arguments, output);
    std::optional<platform::ExitStatus> status;
    while (!(status = process.poll()))
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    EXPECT_EQ(status->signal, 0) << status->signalName;
    return {status->code, readAll(output)};
  }

  std::filesystem::path mFolder;
};

/// A looped trigger that counts the seconds.
inline const std::string BEAT =
    "InitNewTrigger(\"Beat\", true, true);\nInitConditions();\nTimer(\"1\");\nInitEffects();\n"
    "VariableModify(\"beats\", \"+\", \"1\", \"beats\");\nDoLogEntry(\"INFO\", \"beat\");\n";

}
