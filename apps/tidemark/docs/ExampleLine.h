#pragma once
#include <span>
#include <string_view>

namespace tidemark::docs {

/// A line of a script test that uses an entry of the catalogue.
struct ExampleLine {
  std::string_view entry;
  unsigned arguments = 0; ///< as written
  std::string_view line;
  std::string_view shows; ///< what the test shows; may be empty
  std::string_view test;  ///< its file, below tests/scripts
};

/// By entry, each with a line for each number of arguments that tests write. Made when the program is built.
std::span<const ExampleLine> exampleLines();

/// The line that shows most of an entry with so many parameters; null if no test uses it.
const ExampleLine* findExample(std::string_view entry, std::size_t parameters);

}
