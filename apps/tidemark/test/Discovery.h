#pragma once
#include <string>
#include <vector>

namespace tidemark::test {

/// The test files of the paths: a file stands for itself; in a folder all `*.script` files that hold a directive,
/// sorted. Each file once. Throws std::runtime_error for a path that doesn't exist or can't be read.
std::vector<std::string> findTests(const std::vector<std::string>& paths);

/// Throws std::runtime_error.
std::string readFile(const std::string& path);

}
