#include "apps/tidemark/test/files/LinePattern.h"

#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/Words.h"

#include <fmt/format.h>

#include <regex>

namespace tidemark::test {

namespace {

constexpr std::size_t LONGEST_PATTERN = 500;
constexpr std::size_t LONGEST_LINE = 20'000;

#ifdef __GLIBCXX__
// This library's search goes back step by step, on the stack, unless it is told not to.
constexpr auto SYNTAX = std::regex::ECMAScript | std::regex_constants::__polynomial;
#else
constexpr auto SYNTAX = std::regex::ECMAScript;
#endif

}

struct LinePattern::Compiled {
  std::regex regex;
};

LinePattern::LinePattern(const std::string& pattern) {
  if (pattern.size() > LONGEST_PATTERN)
    throw DirectiveError(fmt::format("the pattern is longer than {} characters", LONGEST_PATTERN));
  try {
    mCompiled = std::make_unique<Compiled>(Compiled{std::regex(pattern, SYNTAX)});
  } catch (const std::regex_error& fault) {
    throw DirectiveError(fmt::format("'{}' is no pattern: {}", pattern, fault.what()));
  }
}

LinePattern::~LinePattern() = default;
LinePattern::LinePattern(LinePattern&&) noexcept = default;

bool LinePattern::matches(const std::string& line) const {
  if (line.size() > LONGEST_LINE)
    throw NotThere(fmt::format("a line of {} characters; patterns compare {} at most", line.size(), LONGEST_LINE));
  return std::regex_match(line, mCompiled->regex);
}

}
