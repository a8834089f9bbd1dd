#pragma once
#include <filesystem>
#include <string>
#include <vector>

/// Which lines of the script tests show an entry of the catalogue best. Runs when the program is built; what it finds
/// becomes a source of the program.
namespace tidemark::examples {

/// A line that uses an entry.
struct Line {
  std::string entry;
  std::size_t arguments = 0; ///< as written
  std::string text;          ///< the line, without indent and `!`-free if there is such a one
  std::string shows;         ///< what the test shows, by its first comment; may be empty
  std::string file;          ///< the test, below the folder that was searched

  bool operator==(const Line&) const = default;
};

struct Collection {
  /// By entry and number of arguments, the best line for each; in the order of their names.
  std::vector<Line> lines;
  /// Files and folders on which the result depends.
  std::vector<std::filesystem::path> inputs;
};

/// Reads all `*.script` files below the folder. Best is a line of a test that stands in the folder of its entry, of one
/// that expects no faults and hints, a short one; else the first by file and line.
Collection collect(const std::filesystem::path& folder);

/// The lines as C++, for apps/tidemark/docs/ExampleLine.h.
std::string toSource(const std::vector<Line>& lines);
/// A make rule that says that the output depends on the inputs.
std::string toRule(const std::filesystem::path& output, const std::vector<std::filesystem::path>& inputs);

}
