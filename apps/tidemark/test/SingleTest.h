#pragma once
#include "apps/tidemark/test/TestPlan.h"

#include <string>
#include <vector>

namespace tidemark::test {

/// Names of what a test's process leaves in its folder for the one that started it.
inline constexpr const char* RESULT_FILE = "result.json";
inline constexpr const char* LOG_FILE = "log.txt";
inline constexpr const char* OUTPUT_FILE = "output.txt";

/// Runs one test in this process, which is made for it: the working directory becomes the folder of the project `test`
/// below `folder`. Scripts may write there and below `allowWrite`. Writes what failed to the result file in `folder`.
/// Throws std::exception only if even that can't be written.
void runSingleTest(const std::string& file, const std::string& folder, const std::vector<std::string>& allowWrite,
                   const BlankedEntry& blanked);

}
