#pragma once

namespace CLI {
class App;
}

namespace tidemark::test {

/// Adds `tidemark test` and the hidden `single-test`, in which each test runs, to the command line. `exitCode` gets
/// what they return and must outlive the parsing.
void addTestCommand(CLI::App& app, int& exitCode);

}
