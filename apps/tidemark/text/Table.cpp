#include "apps/tidemark/text/Table.h"

#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>

#include <algorithm>

namespace tidemark {

namespace {

constexpr std::size_t MOST_ROWS = 200; // the JSON report has all

}

std::string layOut(std::vector<std::vector<std::string>> rows, std::string_view indent, std::size_t longestCell) {
  const std::size_t left = rows.size() > MOST_ROWS ? rows.size() - MOST_ROWS : 0;
  rows.resize(rows.size() - left);
  for (auto& row : rows)
    for (std::string& cell : row)
      cell = toCell(cell, longestCell);
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], displayWidth(row[i]));
  }
  std::string text;
  for (const auto& row : rows) {
    text += indent;
    for (std::size_t i = 0; i < row.size(); ++i)
      text += row[i] + (i + 1 < row.size() ? std::string(widths[i] - displayWidth(row[i]) + 2, ' ') : "\n");
  }
  if (left > 0) text += fmt::format("{}... and {} more, which --report FILE lists\n", indent, left);
  return text;
}

}
