#include "apps/tidemark/test/TestPlan.h"

#include <cmath>

namespace tidemark::test {

namespace {

template <class Value> std::vector<Value> collect(const TestPlan& plan, std::vector<Value> Expectation::*values) {
  std::vector<Value> all;
  const auto add = [&](const Expectation& expectation) {
    all.insert(all.end(), (expectation.*values).begin(), (expectation.*values).end());
  };
  for (const Expectation& expectation : plan.expectations)
    add(expectation);
  for (const Step& step : plan.steps)
    if (step.expectation) add(*step.expectation);
  return all;
}

}

std::vector<LogPattern> TestPlan::namedLines() const { return collect(*this, &Expectation::logs); }

std::vector<std::string> TestPlan::namedHints() const { return collect(*this, &Expectation::hints); }

std::vector<std::string> TestPlan::watchedMessages() const { return collect(*this, &Expectation::messages); }

std::uint64_t TestPlan::framesUntil(double seconds) const {
  return static_cast<std::uint64_t>(std::llround(seconds / tick));
}

}
