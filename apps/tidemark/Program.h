#pragma once

namespace tidemark {

/// The whole program: reads the command line, runs the subcommand, returns the exit code. Throws nothing.
int runProgram(int argumentCount, char** arguments);

}
