#include "apps/tidemark/test/directives/TextMatch.h"

#include "apps/tidemark/text/Encoding.h"

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

bool matchesBytes(std::string_view directive, std::string_view actual) {
  const auto length = matchAt(directive, actual);
  return length && *length == actual.size();
}

bool containsBytes(std::string_view directive, std::string_view actual) {
  for (std::size_t start = 0; start <= actual.size(); ++start)
    if (matchAt(directive, actual.substr(start))) return true;
  return false;
}

std::uint64_t countBytes(std::string_view directive, std::string_view actual) {
  std::uint64_t count = 0;
  for (std::size_t start = 0; start < actual.size();) {
    const std::size_t length = matchAt(directive, actual.substr(start)).value_or(0);
    if (length > 0) ++count;
    start += std::max<std::size_t>(length, 1);
  }
  return count;
}

bool isAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// True if the directive's characters could stand in the text as bytes of the code page.
bool isInOtherEncoding(std::string_view directive, std::string_view actual) {
  return !isAscii(directive) && isUtf8(directive) && !isUtf8(actual);
}

}

bool textMatches(std::string_view directive, std::string_view actual) {
  return matchesBytes(directive, actual) ||
         (isInOtherEncoding(directive, actual) && matchesBytes(directive, toUtf8(actual)));
}

bool textContained(std::string_view directive, std::string_view actual) {
  return containsBytes(directive, actual) ||
         (isInOtherEncoding(directive, actual) && containsBytes(directive, toUtf8(actual)));
}

std::uint64_t countOccurrences(std::string_view directive, std::string_view actual) {
  const std::uint64_t count = countBytes(directive, actual);
  return count > 0 || !isInOtherEncoding(directive, actual) ? count : countBytes(directive, toUtf8(actual));
}

bool holdsGlobalMark(std::string_view name) { return name.find('\xA7') != std::string_view::npos; }

}
