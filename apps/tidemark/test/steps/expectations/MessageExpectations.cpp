// Expectations on messages of the host.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Messages.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/message/MessageSystem.h"

#include <fmt/format.h>

namespace tidemark::test {

namespace {

Verdict checkFilters(const TestSession& session, const std::string& name, const std::vector<std::string>& filters,
                     Times times) {
  const std::uint32_t id = qsf::StringHash(name).getHash();
  const std::uint64_t count = session.messages().count(id, resolveFilters(session, filters));
  return {times.holds(count),
          fmt::format("emitted {} times so; its filters were {}", count, session.messages().describe(id)),
          {}};
}

Expectation expectMessage(WordCursor& words) {
  const std::string name = words.take("the message's name");
  std::vector<std::string> filters;
  if (words.takeIf("with")) {
    while (!words.atEnd() && !atTimes(words))
      filters.push_back(words.take("a filter"));
    if (filters.empty()) throw DirectiveError("behind 'with' stands a filter");
  }
  const Times times = takeTimes(words);
  Expectation expectation;
  if (!filters.empty()) expectation.messages.push_back(name);
  expectation.check = [=](TestSession& session) {
    requireMessage(session, name);
    if (!filters.empty()) return checkFilters(session, name, filters, times);
    const std::uint64_t count = session.host().getQsf().getMessageSystem().getEmittedCount(qsf::StringHash(name));
    return Verdict{times.holds(count), fmt::format("emitted {} times", count), {}};
  };
  return expectation;
}

}

std::optional<Expectation> readMessageExpectation(WordCursor& words) {
  if (words.takeIf("message")) return expectMessage(words);
  return std::nullopt;
}

}
