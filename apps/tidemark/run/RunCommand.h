#pragma once

namespace CLI {
class App;
}

namespace tidemark::run {

/// Adds `tidemark run` to the command line. `exitCode` gets what it returns and must outlive the parsing.
void addRunCommand(CLI::App& app, int& exitCode);

}
