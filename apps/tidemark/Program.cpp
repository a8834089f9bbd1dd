#include "apps/tidemark/Program.h"

#include "apps/tidemark/ExitCode.h"
#include "apps/tidemark/Subcommand.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tidemark {

// All commands, in the order of the help.
Subcommand runCommand();
Subcommand testCommand();
Subcommand catalogueCommand();
Subcommand docsCommand();
Subcommand singleTestCommand();

namespace {

constexpr Subcommand (*SUBCOMMANDS[])() = {runCommand, testCommand, catalogueCommand, docsCommand, singleTestCommand};

int fail(const std::string& command, const std::exception& fault, ExitCode code) {
  fmt::print(stderr, "tidemark {}: {}\n", command, fault.what());
  return code;
}

int call(const std::string& command, const std::function<int()>& action) {
  try {
    return action();
  } catch (const UsageError& fault) {
    return fail(command, fault, EXIT_USAGE);
  } catch (const std::exception& fault) {
    return fail(command, fault, EXIT_CANNOT_LOAD);
  }
}

// A result that didn't arrive is no success.
int finishOutput(int exitCode) {
  errno = 0;
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return exitCode;
  fmt::print(stderr, "tidemark: standard output can't be written{}{}\n", errno ? ": " : "",
             errno ? std::strerror(errno) : "");
  return exitCode == EXIT_FINE ? EXIT_CANNOT_LOAD : exitCode;
}

}

int runProgram(int argumentCount, char** arguments) {
  CLI::App app("Tidemark: runs and tests scripts of maps and modifications, without the game");
  app.name("tidemark");
  app.require_subcommand(1);
  app.footer("Examples:\n  tidemark run examples/harbour --seconds 30\n  tidemark test tests/scripts\n\n'tidemark "
             "COMMAND --help' tells more about a command.");
  std::function<int()> chosen;
  for (const auto make : SUBCOMMANDS) {
    const Subcommand subcommand = make();
    CLI::App* command = app.add_subcommand(subcommand.name, subcommand.description);
    if (!*subcommand.description) command->group("");
    command->footer(subcommand.footer);
    const std::function<int()> action = subcommand.declare(*command);
    command->callback(
        [&chosen, name = std::string(subcommand.name), action] { chosen = [=] { return call(name, action); }; });
  }
  try {
    app.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& result) {
    // Asking for help is one of these, too.
    return finishOutput(app.exit(result) == 0 ? EXIT_FINE : EXIT_USAGE);
  }
  return finishOutput(chosen());
}

}
