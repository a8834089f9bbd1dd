#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace tidemark {

constexpr std::size_t LONGEST_CELL = 80; ///< characters
/// Of a cell that holds a sentence.
constexpr std::size_t LONGEST_SENTENCE = 300;

/// Rows of cells as lines of text, columns as wide as their widest cell; the last one isn't padded. Longer cells are
/// cut, and after some hundreds of rows only the number of the others is told, with a word on where they stand.
std::string layOut(std::vector<std::vector<std::string>> rows, std::string_view indent,
                   std::size_t longestCell = LONGEST_CELL);

}
