#include "apps/tidemark/test/MessageBook.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

namespace tidemark::test {

namespace {

constexpr std::size_t LONGEST_DESCRIPTION = 400;

}

void MessageBook::add(std::uint32_t id, std::span<const std::uint64_t> filters) {
  if (mWatched.contains(id)) ++mCounts[id][{filters.begin(), filters.end()}];
}

std::uint64_t MessageBook::count(std::uint32_t id, std::span<const std::uint64_t> leading) const {
  const auto counts = mCounts.find(id);
  if (counts == mCounts.end()) return 0;
  std::uint64_t sum = 0;
  for (const auto& [filters, count] : counts->second)
    if (leading.size() <= filters.size() && std::equal(leading.begin(), leading.end(), filters.begin())) sum += count;
  return sum;
}

std::string MessageBook::describe(std::uint32_t id) const {
  const auto counts = mCounts.find(id);
  if (counts == mCounts.end()) return "none";
  std::string text;
  for (const auto& [filters, count] : counts->second) {
    if (text.size() > LONGEST_DESCRIPTION) return text + " ...";
    text += fmt::format("{}({})", text.empty() ? "" : " ", fmt::join(filters, ", "));
  }
  return text;
}

}
