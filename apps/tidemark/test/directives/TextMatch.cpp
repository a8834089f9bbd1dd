#include "apps/tidemark/test/directives/TextMatch.h"

#include <algorithm>
#include <optional>

namespace tidemark::test {

namespace {

constexpr std::string_view MARK = "\xC2\xA7";

// How many bytes of `actual` the directive's text takes from there on; nothing if it doesn't match.
std::optional<std::size_t> matchAt(std::string_view directive, std::string_view actual) {
  std::size_t position = 0;
  for (std::size_t i = 0; i < directive.size();) {
    if (directive.substr(i).starts_with(MARK)) {
      const std::string_view rest = actual.substr(std::min(position, actual.size()));
      if (!rest.starts_with(MARK) && !rest.starts_with('\xA7')) return std::nullopt;
      position += rest.starts_with(MARK) ? 2 : 1;
      i += MARK.size();
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

bool holdsGlobalMark(std::string_view name) { return name.find('\xA7') != std::string_view::npos; }

}
