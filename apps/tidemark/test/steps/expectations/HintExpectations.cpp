// Expectations on hints: what the module tells beside the log.
#include "apps/tidemark/session/Places.h"
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/Steps.h"

#include <fmt/format.h>

#include <algorithm>

namespace tidemark::test {

namespace {

using script::tooling::HintView;

std::string list(const std::vector<HintView>& hints) {
  std::string text;
  for (const HintView& hint : hints)
    text +=
        fmt::format("{}{} ({})", text.empty() ? "" : "; ", tidemark::describe(hint), tidemark::describe(hint.origin));
  return text.empty() ? "no hints" : text;
}

// A place is told of once, however often it is passed.
Expectation countHints(WordCursor& words) {
  words.require("containing");
  const std::string text = words.take("the text of the hint");
  const Times times = takeTimes(words);
  Expectation expectation;
  expectation.hints.push_back(text);
  expectation.check = [text, times](TestSession& session) {
    const std::vector<HintView> hints = session.tooling().getHints();
    const auto count = static_cast<std::uint64_t>(std::ranges::count_if(
        hints, [&](const HintView& hint) { return textContained(text, tidemark::describe(hint)); }));
    return Verdict{times.holds(count), fmt::format("{} such of {}", count, list(hints)), {}};
  };
  return expectation;
}

Expectation expectNoHints() {
  Expectation expectation;
  expectation.check = [](TestSession& session) {
    const std::vector<HintView> hints = session.tooling().getHints();
    return Verdict{hints.empty(), list(hints), {}};
  };
  return expectation;
}

}

std::optional<Expectation> readHintExpectation(WordCursor& words) {
  if (words.takeIf("hint")) return countHints(words);
  if (!words.peekKeyword("no") || !words.peekKeyword("hints", 1)) return std::nullopt;
  words.require("no");
  words.require("hints");
  return expectNoHints();
}

}
