// Expectations on the log.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "qsf/log/LogSystem.h"

#include <fmt/format.h>

#include <algorithm>

namespace tidemark::test {

namespace {

int takeSeverity(WordCursor& words) {
  const std::string word = words.take("a severity");
  if (const auto severity = parseSeverity(word)) return *severity;
  throw DirectiveError(fmt::format("'{}' is no severity; there are TRACE DEBUG INFO WARNING ERROR NONE ANY", word));
}

Expectation countLines(WordCursor& words) {
  LogPattern pattern;
  pattern.severity = takeSeverity(words);
  if (words.peekKeyword("containing") && words.remaining() > 1) {
    words.require("containing");
    pattern.extent = LogPattern::Extent::PART;
  }
  pattern.text = words.take("the text of the log line");
  const Times times = takeTimes(words);
  Expectation expectation;
  expectation.logs.push_back(pattern);
  expectation.check = [pattern, times](TestSession& session) {
    const std::size_t count = session.log().count(pattern);
    Verdict verdict{times.holds(count), fmt::format("{} such line{}", count, count == 1 ? "" : "s"), {}};
    if (!verdict.holds) verdict.around = session.log().around(pattern);
    return verdict;
  };
  return expectation;
}

// A text, or `containing` and a part of one.
LogPattern takePattern(WordCursor& words, std::string_view what) {
  LogPattern pattern;
  if (words.takeIf("containing")) pattern.extent = LogPattern::Extent::PART;
  pattern.text = words.take(what);
  return pattern;
}

Expectation compareOrder(WordCursor& words) {
  const LogPattern first = takePattern(words, "the first text");
  words.require("before");
  const LogPattern second = takePattern(words, "the second text");
  Expectation expectation;
  expectation.logs = {first, second};
  expectation.check = [first, second](TestSession& session) {
    const auto firstIndex = session.log().find(first);
    const auto secondIndex = session.log().find(second);
    if (!firstIndex) return Verdict{false, fmt::format("no line \"{}\"", first.text), session.log().around(first)};
    if (!secondIndex) return Verdict{false, fmt::format("no line \"{}\"", second.text), session.log().around(second)};
    return Verdict{*firstIndex < *secondIndex,
                   fmt::format("the first \"{}\" is line {}, the first \"{}\" line {} of the log", first.text,
                               *firstIndex + 1, second.text, *secondIndex + 1),
                   session.log().around(std::min(*firstIndex, *secondIndex))};
  };
  return expectation;
}

Expectation noOtherLog(WordCursor& words) {
  words.require("no");
  words.require("other");
  words.require("log");
  words.require("above");
  const int limit = takeSeverity(words);
  if (limit == LogPattern::ANY_SEVERITY) throw DirectiveError("'above' needs a severity other than ANY");
  Expectation expectation;
  expectation.check = [limit](TestSession& session) {
    const std::vector<LogPattern> named = session.plan().namedLines();
    const auto& lines = session.log().getLines();
    const auto other = std::find_if(lines.begin(), lines.end(), [&](const LogBook::Line& line) {
      return line.severity > limit && std::none_of(named.begin(), named.end(), [&](const LogPattern& pattern) {
               return pattern.matches(line.severity, line.message);
             });
    });
    if (other == lines.end()) return Verdict{true, "no such line", {}};
    return Verdict{false, fmt::format("{} \"{}\"", qsf::LogSystem::getSeverityName(other->severity), other->message),
                   session.log().around(static_cast<std::size_t>(other - lines.begin()))};
  };
  return expectation;
}

}

std::optional<Expectation> readLogExpectation(WordCursor& words) {
  if (words.takeIf("after")) {
    words.require("shutdown");
    auto expectation = readLogExpectation(words);
    if (!expectation) throw DirectiveError("behind 'after shutdown' stands an expectation on the log");
    expectation->moment = Expectation::Moment::AFTER_SHUTDOWN;
    return expectation;
  }
  if (words.peekKeyword("no") && words.peekKeyword("other", 1)) return noOtherLog(words);
  if (!words.takeIf("log")) return std::nullopt;
  const std::size_t before = words.peekKeyword("containing") ? 2 : 1;
  return words.peekKeyword("before", before) ? compareOrder(words) : countLines(words);
}

}
