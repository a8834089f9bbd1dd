// Expectations on the bids of scripts for their mouse click commands.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/Steps.h"

#include <fmt/format.h>

#include <algorithm>

namespace tidemark::test {

namespace {

using script::tooling::CommandBidView;

std::optional<CommandBidView> findBid(const TestSession& session, const std::string& name) {
  const std::vector<CommandBidView> bids = session.tooling().getCommandBids();
  const auto found =
      std::find_if(bids.begin(), bids.end(), [&](const CommandBidView& bid) { return textMatches(name, bid.name); });
  return found == bids.end() ? std::nullopt : std::optional(*found);
}

std::string describe(const CommandBidView& bid) {
  return fmt::format("priority {} icon \"{}\" {}", bid.priority, bid.icon, bid.armed ? "armed" : "unarmed");
}

Expectation expectBid(WordCursor& words) {
  const std::string name = words.take("the command's name");
  words.require("priority");
  const double priority = words.takeNumber("the priority");
  std::optional<std::string> icon;
  if (words.takeIf("icon")) icon = words.take("the icon");
  const bool armed = words.takeIf("armed");
  if (!armed) words.require("unarmed");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const auto bid = findBid(session, name);
    if (!bid) throw NotThere(fmt::format("no script has named a command '{}'", name));
    const bool holds = numbersMatch(priority, bid->priority, std::nullopt) && bid->armed == armed &&
                       (!icon || textMatches(*icon, bid->icon));
    return Verdict{holds, describe(*bid), {}};
  };
  return expectation;
}

Expectation expectNoBid(WordCursor& words) {
  const std::string name = words.take("the command's name");
  Expectation expectation;
  expectation.check = [name](TestSession& session) {
    const auto bid = findBid(session, name);
    return Verdict{!bid, bid ? describe(*bid) : "no such bid", {}};
  };
  return expectation;
}

}

std::optional<Expectation> readCommandExpectation(WordCursor& words) {
  if (words.takeIf("bid")) return expectBid(words);
  if (!words.peekKeyword("no") || !words.peekKeyword("bid", 1)) return std::nullopt;
  words.require("no");
  words.require("bid");
  return expectNoBid(words);
}

}
