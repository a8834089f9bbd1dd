#pragma once
#include <functional>
#include <stdexcept>

namespace CLI {
class App;
}

namespace tidemark {

/// A command of the program, `tidemark NAME ...`. Each stands in a source of its own; Program.cpp lists them.
struct Subcommand {
  const char* name;
  const char* description; ///< one line of the program's help; empty: the help doesn't show the command
  const char* footer;      ///< an example and the exit codes, below the command's own help
  /// Declares the options on the command and returns what the command does, which is called once the command line has
  /// been read and gives the exit code. What it throws is printed: a UsageError is exit code 2, anything else 3.
  std::function<int()> (*declare)(CLI::App& command);
};

/// A command line that can be told wrong only when the command runs.
class UsageError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

}
