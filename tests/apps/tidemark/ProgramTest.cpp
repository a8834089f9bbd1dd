// The front door: help, usage and what holds for every command.
#include "apps/tidemark/ProgramFixture.h"

namespace tidemark {

namespace {

// Names of the commands that the program's help lists.
std::vector<std::string> commandsOf(const std::string& help) {
  std::istringstream lines(help.substr(help.find("Subcommands:\n")));
  std::vector<std::string> commands;
  std::string line, name;
  std::getline(lines, line);
  while (std::getline(lines, line) && line.starts_with("  "))
    if (std::istringstream(line) >> name && line[2] != ' ') commands.push_back(name);
  return commands;
}

TEST_F(Program, EveryCommandHasHelpWithAnExampleAndExitCodes) {
  const Outcome outcome = run({"--help"});
  EXPECT_EQ(outcome.code, 0);
  const std::vector<std::string> commands = commandsOf(outcome.output);
  EXPECT_GE(commands.size(), 2u) << outcome.output;
  for (const std::string& command : commands) {
    const Outcome help = run({command, "--help"});
    EXPECT_EQ(help.code, 0) << command;
    EXPECT_NE(help.output.find("Example"), std::string::npos) << help.output;
    EXPECT_NE(help.output.find("Exit codes"), std::string::npos) << help.output;
  }
}

TEST_F(Program, HelpShowsDefaults) {
  const std::string help = run({"run", "--help"}).output;
  for (const char* option : {"--seconds S=10", "--tick S=0.05", "--mode NAME=endless", "--language CODE=en",
                             "--seed N=1", "--log-level NAME=info", "--log-format NAME=text"})
    EXPECT_NE(help.find(option), std::string::npos) << option << "\n" << help;
}

TEST_F(Program, OutputThatCannotBeWrittenIsAnError) {
  for (const char* command : {"\"$0\" --help >/dev/full", "\"$0\" run --help >/dev/full"}) {
    const Outcome outcome = runInShell(command);
    EXPECT_EQ(outcome.code, 3) << command;
    EXPECT_NE(outcome.output.find("standard output can't be written"), std::string::npos) << outcome.output;
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
                                                    {"run", ".", "--log-level", "loud"},
                                                    {"run", ""},
                                                    {"test", ""},
                                                    {"run", ".", "--map", ""},
                                                    {"run", ".", "--seed", "-1"},
                                                    {"run", ".", "--seed", "1.5"},
                                                    {"run", ".", "--seed", "18446744073709551616"},
                                                    {"run", ".", "--language", ""},
                                                    {"run", ".", "--language", "../en"},
                                                    {"run", ".", "--language", "english"}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.code, 2) << testing::PrintToString(arguments) << outcome.output;
  }
}

TEST_F(Program, WhatCannotBeLoadedIsThree) {
  const Outcome test = run({"test", folder() + "/nowhere"});
  EXPECT_EQ(test.code, 3);
  EXPECT_NE(test.output.find("nowhere"), std::string::npos);
  const Outcome project = run({"run", folder() + "/nowhere"});
  EXPECT_EQ(project.code, 3);
  EXPECT_NE(project.output.find("nowhere"), std::string::npos);
}

}

}
