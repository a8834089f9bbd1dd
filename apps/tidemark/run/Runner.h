#pragma once
#include "apps/tidemark/run/RunOptions.h"

namespace tidemark::run {

/// Mounts the projects, plays the map for the asked time, prints the final table or writes the report, and returns the
/// program's exit code. The working directory becomes the first project's folder. Throws std::exception for inputs that
/// can't be loaded and reports that can't be written, UsageError for a language that nobody has texts in.
int runProjects(const RunOptions& options);

/// The same for a game of several machines on this computer.
int runMachines(const RunOptions& options);

}
