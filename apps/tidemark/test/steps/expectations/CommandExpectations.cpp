// Expectations on the commands of units, and on the bids of scripts for their mouse click commands.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/Commands.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/component/CommandableComponent.h"
#include "qsf/map/Entity.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

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

// `ID offers NAME|nothing [icon ICON] [priority N] [for TARGET]`: what a right click would execute.
struct Offer {
  std::string name; ///< empty for nothing
  std::optional<std::string> icon;
  std::optional<double> priority;
};

Offer takeOffer(WordCursor& words) {
  Offer offer;
  if (words.takeIf("nothing")) return offer;
  offer.name = words.take("a command or nothing");
  if (words.takeIf("icon")) offer.icon = words.take("the icon");
  if (words.takeIf("priority")) offer.priority = words.takeNumber("the priority");
  return offer;
}

bool offerMatches(const Offer& offer, const em5::Command* command) {
  if (!command || offer.name.empty()) return !command == offer.name.empty();
  return command->getName() == offer.name &&
         (!offer.icon || textMatches(*offer.icon, command->getIconSettings().mMouseIcon)) &&
         (!offer.priority || numbersMatch(*offer.priority, command->getPriority(), std::nullopt));
}

Expectation expectOffer(WordCursor& words) {
  CommandedUnits units;
  units.caller = takeEntityReference(words);
  words.require("offers");
  const Offer offer = takeOffer(words);
  if (words.takeIf("for")) units.target = takeEntityReference(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    if (!offer.name.empty()) findCommand(offer.name);
    const em5::Command* command = em5::CommandHelper::findBestCommand(makeContext(session, units));
    return Verdict{offerMatches(offer, command),
                   command ? fmt::format("{} icon \"{}\" priority {}", command->getName(),
                                         command->getIconSettings().mMouseIcon, command->getPriority())
                           : "nothing",
                   {}};
  };
  return expectation;
}

// `ID commands == NAME...`
Expectation expectCommands(WordCursor& words) {
  const EntityReference reference = takeEntityReference(words);
  words.require("commands");
  words.require("==");
  const std::vector<std::string> expected = words.takeRest();
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const auto* commandable = session.findEntity(session.resolve(reference)).getComponent<em5::CommandableComponent>();
    if (!commandable) throw NotThere("no em5::CommandableComponent");
    std::vector<std::string> found;
    for (const std::uint32_t id : commandable->getCommandIds())
      found.push_back(nameOfCommand(id));
    return Verdict{found == expected, found.empty() ? "no commands" : fmt::format("{}", fmt::join(found, " ")), {}};
  };
  return expectation;
}

}

std::optional<Expectation> readCommandExpectation(WordCursor& words) {
  if (peekEntityForm(words, {"offers"})) return expectOffer(words);
  if (peekEntityForm(words, {"commands"})) return expectCommands(words);
  if (words.takeIf("bid")) return expectBid(words);
  if (!words.peekKeyword("no") || !words.peekKeyword("bid", 1)) return std::nullopt;
  words.require("no");
  words.require("bid");
  return expectNoBid(words);
}

}
