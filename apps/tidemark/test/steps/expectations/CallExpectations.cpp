// Expectations on recorded calls: operations of the host that leave their trace nowhere else.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Reflection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/base/NearNames.h"
#include "qsf/base/RecordedOperation.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

namespace tidemark::test {

namespace {

using Calls = std::vector<qsf::CallRecorder::Call>;

void requireOperation(const std::string& operation) {
  if (qsf::RecordedOperation::find(operation)) return;
  std::vector<std::string> known;
  for (const qsf::RecordedOperation* recorded : qsf::RecordedOperation::getAll())
    known.emplace_back(recorded->getName());
  throw DirectiveError(
      fmt::format("calls of '{}' are not recorded{}", operation, qsf::nearNamesHint(operation, known)));
}

const Calls& callsOf(const TestSession& session) { return session.host().getQsf().getCallRecorder().getCalls(); }

// An argument as a directive writes it; nothing for `*`, which any argument matches.
using Argument = std::optional<std::string>;

Argument takeArgument(WordCursor& words) {
  if (words.takeIf("*")) return std::nullopt;
  return words.take("an argument");
}

// The recorded arguments begin with the expected ones.
bool argumentsMatch(const std::vector<Argument>& expected, const std::vector<std::string>& found) {
  return expected.size() <= found.size() &&
         std::equal(expected.begin(), expected.end(), found.begin(), [](const Argument& wanted, const auto& argument) {
           return !wanted || valueMatches(*wanted, argument, std::nullopt);
         });
}

Verdict checkCalls(const TestSession& session, const std::string& operation, const std::vector<Argument>& arguments,
                   Times times) {
  std::uint64_t count = 0;
  std::string seen;
  for (const qsf::CallRecorder::Call& call : callsOf(session)) {
    if (call.operation != operation) continue;
    count += argumentsMatch(arguments, call.arguments);
    if (seen.size() < 400) seen += fmt::format("; ({})", fmt::join(call.arguments, ", "));
  }
  return {times.holds(count),
          fmt::format("{} such calls; its calls are{}", count, seen.empty() ? " none" : seen.substr(1)),
          {}};
}

Expectation countCalls(WordCursor& words, const std::string& operation) {
  std::vector<Argument> arguments;
  if (words.takeIf("with")) {
    if (words.atEnd() || atTimes(words)) throw DirectiveError("behind 'with' stand arguments");
    while (!words.atEnd() && !atTimes(words))
      arguments.push_back(takeArgument(words));
  }
  const Times times = takeTimes(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    requireOperation(operation);
    return checkCalls(session, operation, arguments, times);
  };
  return expectation;
}

// The first call of one comes before the first call of the other.
Expectation compareOrder(WordCursor& words, const std::string& first) {
  words.require("before");
  const std::string second = words.take("the second operation's name");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    requireOperation(first);
    requireOperation(second);
    const Calls& calls = callsOf(session);
    const auto firstCall = std::ranges::find(calls, first, &qsf::CallRecorder::Call::operation);
    const auto secondCall = std::ranges::find(calls, second, &qsf::CallRecorder::Call::operation);
    if (firstCall == calls.end()) return Verdict{false, fmt::format("no call of {}", first), {}};
    if (secondCall == calls.end()) return Verdict{false, fmt::format("no call of {}", second), {}};
    return Verdict{firstCall < secondCall,
                   fmt::format("the first {} is call {}, the first {} call {}", first, firstCall - calls.begin() + 1,
                               second, secondCall - calls.begin() + 1),
                   {}};
  };
  return expectation;
}

}

std::optional<Expectation> readCallExpectation(WordCursor& words) {
  if (!words.takeIf("call")) return std::nullopt;
  const std::string operation = words.take("the operation's name");
  return words.peekKeyword("before") ? compareOrder(words, operation) : countCalls(words, operation);
}

}
