#include "apps/tidemark/test/directives/TextMatch.h"

#include <algorithm>
#include <optional>

namespace tidemark::test {

namespace {

constexpr std::string_view MARK = "\xC2\xA7";

// Bytes of the mark that the text begins with, in either encoding; 0 if it doesn't.
std::size_t markLength(std::string_view text) { return text.starts_with(MARK) ? 2 : text.starts_with('\xA7') ? 1 : 0; }

// How many bytes of `actual` the directive's text takes from there on; nothing if it doesn't match.
std::optional<std::size_t> matchAt(std::string_view directive, std::string_view actual) {
  std::size_t position = 0;
  for (std::size_t i = 0; i < directive.size();) {
    const std::size_t mark = markLength(directive.substr(i));
    if (mark > 0) {
      const std::size_t taken = markLength(actual.substr(std::min(position, actual.size())));
      if (taken == 0) return std::nullopt;
      position += taken;
      i += mark;
    } else {
      if (position >= actual.size() || actual[position] != directive[i]) return std::nullopt;
      ++position;
      ++i;
    }
  }
  return position;
}

}

bool textMatches(std::string_view directive, std::string_view actual) {
  const auto length = matchAt(directive, actual);
  return length && *length == actual.size();
}

bool textContained(std::string_view directive, std::string_view actual) {
  for (std::size_t start = 0; start <= actual.size(); ++start)
    if (matchAt(directive, actual.substr(start))) return true;
  return false;
}

std::uint64_t countOccurrences(std::string_view directive, std::string_view actual) {
  std::uint64_t count = 0;
  for (std::size_t start = 0; start < actual.size();) {
    const std::size_t length = matchAt(directive, actual.substr(start)).value_or(0);
    if (length > 0) ++count;
    start += std::max<std::size_t>(length, 1);
  }
  return count;
}

bool holdsGlobalMark(std::string_view name) { return name.find('\xA7') != std::string_view::npos; }

}
