#pragma once
#include <boost/property_tree/ptree_fwd.hpp>

#include <cstddef>
#include <string>

namespace script {

/// What a JSON file may hold at most. Parser and trees recurse, and a value takes some hundred bytes of memory, so that
/// a file without bounds could end the process.
inline constexpr std::size_t MAXIMUM_JSON_DEPTH = 512;
inline constexpr std::size_t MAXIMUM_JSON_BYTES = 16 * 1024 * 1024;
inline constexpr std::size_t MAXIMUM_JSON_VALUES = 1'000'000;

/// Reads a file that a script names; a relative path counts from the working directory. Throws std::runtime_error with
/// the file and the reason if it can't be read, is malformed or too large.
boost::property_tree::ptree readJsonFile(const std::string& file);
/// Writes the tree, every value as a quoted text, where the host permits it. The file is written beside and renamed, so
/// that no half of it is ever seen. Throws std::runtime_error with the file and the reason; what stood there before
/// stays then.
void writeJsonFile(const std::string& file, const boost::property_tree::ptree& tree);

/// The text's depth of nesting and its number of values, as far as it is JSON; never less than what a parser meets
/// before it finds a fault.
struct JsonExtent {
  std::size_t depth = 0;
  std::size_t values = 0;
};
JsonExtent measureJson(const std::string& text);

}
