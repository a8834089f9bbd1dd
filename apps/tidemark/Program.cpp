#include "apps/tidemark/Program.h"

#include "apps/tidemark/ExitCode.h"
#include "apps/tidemark/run/RunCommand.h"
#include "apps/tidemark/test/TestCommand.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace tidemark {

int runProgram(int argumentCount, char** arguments) {
  CLI::App app("Tidemark: runs and tests scripts of maps and modifications, without the game");
  app.name("tidemark");
  app.require_subcommand(1);
  app.footer("Examples:\n  tidemark run examples/harbour --seconds 30\n  tidemark test tests/scripts\n\n'tidemark "
             "COMMAND --help' tells more about a command.");
  int exitCode = EXIT_FINE;
  run::addRunCommand(app, exitCode);
  test::addTestCommand(app, exitCode);
  try {
    app.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& result) {
    // Asking for help is one of these, too.
    return app.exit(result) == 0 ? EXIT_FINE : EXIT_USAGE;
  } catch (const std::exception& fault) {
    fmt::print(stderr, "tidemark: {}\n", fault.what());
    return EXIT_CANNOT_LOAD;
  }
  return exitCode;
}

}
