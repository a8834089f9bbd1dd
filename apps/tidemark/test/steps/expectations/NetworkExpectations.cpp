// Expectations on what has passed a machine's door: sent, received, synced.
#include "apps/tidemark/test/Peer.h"
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Steps.h"

#include <fmt/format.h>

#include <algorithm>

namespace tidemark::test {

namespace {

using em5::multiplayer::Traffic;

std::string describe(const Traffic& traffic) {
  switch (traffic.kind) {
  case Traffic::Kind::SENT:
    return fmt::format("sent {} bits {} to {}", traffic.number, traffic.bits, traffic.player);
  case Traffic::Kind::RECEIVED:
    return fmt::format("received {} bits {} from {}{}", traffic.number, traffic.bits, traffic.player,
                       traffic.understood ? "" : ", not understood");
  case Traffic::Kind::SYNCED:
    break;
  }
  return fmt::format("synced {} bits {}", traffic.entity, traffic.bits);
}

std::string describeAll(const std::vector<Traffic>& all) {
  constexpr std::size_t MOST = 10;
  std::string text;
  for (std::size_t i = all.size() - std::min(all.size(), MOST); i < all.size(); ++i)
    text += fmt::format("{}{}", text.empty() ? "" : "; ", describe(all[i]));
  return text.empty() ? "nothing passed the machine's door" : text;
}

struct Wanted {
  Traffic::Kind kind;
  std::uint64_t number = 0; ///< of the message, or the entity's id
  std::optional<std::uint64_t> bits;

  bool matches(const Traffic& traffic) const {
    const std::uint64_t is = kind == Traffic::Kind::SYNCED ? traffic.entity : traffic.number;
    return traffic.kind == kind && is == number && (!bits || *bits == traffic.bits);
  }
};

Expectation takeTraffic(WordCursor& words, Traffic::Kind kind) {
  Wanted wanted{kind, words.takeId(kind == Traffic::Kind::SYNCED ? "the entity's id" : "the message's number"), {}};
  if (words.takeIf("bits")) wanted.bits = words.takeId("the number of bits");
  const Times times = takeTimes(words);
  Expectation expectation;
  expectation.check = [wanted, times](TestSession& session) -> Verdict {
    const std::vector<Traffic>& all = session.peer().traffic();
    const auto count = static_cast<std::uint64_t>(
        std::count_if(all.begin(), all.end(), [&](const Traffic& traffic) { return wanted.matches(traffic); }));
    return {times.holds(count), fmt::format("{} times; {}", count, describeAll(all)), {}};
  };
  return expectation;
}

}

std::optional<Expectation> readNetworkExpectation(WordCursor& words) {
  if (words.takeIf("sent")) return takeTraffic(words, Traffic::Kind::SENT);
  if (words.takeIf("received")) return takeTraffic(words, Traffic::Kind::RECEIVED);
  if (words.takeIf("synced")) return takeTraffic(words, Traffic::Kind::SYNCED);
  return std::nullopt;
}

}
