#include "apps/tidemark/test/LogBook.h"

#include "apps/tidemark/session/Places.h"
#include "apps/tidemark/test/directives/TextMatch.h"

#include "qsf/log/LogSystem.h"

#include <fmt/format.h>

#include <algorithm>

namespace tidemark::test {

namespace {

constexpr std::size_t LINES_AROUND = 4;
constexpr std::size_t LONGEST_MESSAGE = 300;
constexpr std::size_t NONE_MARKED = ~std::size_t{0};

// How much two texts look alike: the length of what they begin and end with in common.
std::size_t likeness(std::string_view wanted, std::string_view found) {
  const std::size_t shorter = std::min(wanted.size(), found.size());
  std::size_t front = 0;
  while (front < shorter && wanted[front] == found[front])
    ++front;
  std::size_t back = 0;
  while (back < shorter - front && wanted[wanted.size() - 1 - back] == found[found.size() - 1 - back])
    ++back;
  return front + back;
}

}

bool LogPattern::matches(int lineSeverity, std::string_view message) const {
  if (severity != ANY_SEVERITY && severity != lineSeverity) return false;
  return extent == Extent::WHOLE ? textMatches(text, message) : textContained(text, message);
}

std::string LogPattern::describe() const {
  return fmt::format("log {} {}\"{}\"", severity == ANY_SEVERITY ? "ANY" : qsf::LogSystem::getSeverityName(severity),
                     extent == Extent::PART ? "containing " : "", text);
}

std::optional<int> parseSeverity(std::string_view word) {
  if (word == "ANY") return LogPattern::ANY_SEVERITY;
  for (int severity = qsf::LogSystem::TRACE; severity <= qsf::LogSystem::NONE; ++severity)
    if (word == qsf::LogSystem::getSeverityName(severity)) return severity;
  return std::nullopt;
}

void LogBook::add(int severity, std::string_view message, std::uint64_t frame,
                  std::optional<script::tooling::Origin> origin) {
  mLines.push_back({severity, std::string(message), frame, std::move(origin)});
}

std::size_t LogBook::count(const LogPattern& pattern) const {
  return static_cast<std::size_t>(std::count_if(
      mLines.begin(), mLines.end(), [&](const Line& line) { return pattern.matches(line.severity, line.message); }));
}

std::optional<std::size_t> LogBook::find(const LogPattern& pattern) const {
  for (std::size_t i = 0; i < mLines.size(); ++i)
    if (pattern.matches(mLines[i].severity, mLines[i].message)) return i;
  return std::nullopt;
}

std::vector<std::string> LogBook::around(const LogPattern& pattern) const {
  if (const auto index = find(pattern)) return around(*index);
  std::size_t nearest = NONE_MARKED;
  std::size_t best = std::max<std::size_t>(4, pattern.text.size() / 2);
  for (std::size_t i = 0; i < mLines.size(); ++i) {
    const std::size_t alike = likeness(pattern.text, mLines[i].message);
    if (alike > best) {
      best = alike;
      nearest = i;
    }
  }
  return nearest == NONE_MARKED ? last() : around(nearest);
}

std::vector<std::string> LogBook::around(std::size_t index) const {
  const std::size_t begin = index < LINES_AROUND ? 0 : index - LINES_AROUND;
  return describe(begin, std::min(mLines.size(), index + LINES_AROUND + 1), index);
}

std::vector<std::string> LogBook::last() const {
  const std::size_t shown = std::min(mLines.size(), 2 * LINES_AROUND);
  return describe(mLines.size() - shown, mLines.size(), NONE_MARKED);
}

std::vector<std::string> LogBook::describe(std::size_t begin, std::size_t end, std::size_t marked) const {
  std::vector<std::string> result;
  for (std::size_t i = begin; i < end; ++i) {
    const Line& line = mLines[i];
    std::string message = line.message.substr(0, LONGEST_MESSAGE);
    std::replace(message.begin(), message.end(), '\n', ' ');
    result.push_back(fmt::format("{} frame {:>4}  {:<7} {}{}{}{}", i == marked ? '>' : ' ', line.frame,
                                 qsf::LogSystem::getSeverityName(line.severity), message,
                                 line.message.size() > LONGEST_MESSAGE ? "..." : "", line.origin ? "    " : "",
                                 line.origin ? tidemark::describe(*line.origin) : ""));
  }
  return result;
}

}
