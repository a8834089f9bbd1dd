#pragma once
#include "apps/tidemark/test/TestPlan.h"

#include <filesystem>
#include <string>
#include <string_view>
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

/// Appends the title and the last lines of a file that a process left, if there are any: what a crash is told with.
void appendTail(std::vector<std::string>& lines, const std::filesystem::path& file, std::string_view title);

}
