#pragma once
#include "apps/tidemark/run/RunOptions.h"

namespace tidemark::run {

/// Mounts the projects, plays the map for the asked time, prints the final table and returns the program's exit code.
/// Faults of inputs are printed; nothing is thrown.
int runProjects(const RunOptions& options);

}
