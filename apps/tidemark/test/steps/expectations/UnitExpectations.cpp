// Expectations on what players can order.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/Game.h"
#include "em5/order/OrderInfoManager.h"

#include <fmt/format.h>

namespace tidemark::test {

namespace {

em5::Game& findGame() {
  const qsf::UniqueInstance<em5::Game> game;
  if (!game) throw NotThere("there is no game");
  return *game;
}

const em5::OrderInfo& findOrderInfo(const std::string& name) {
  const em5::OrderInfo* info = findGame().getOrderInfoManager().getOrderInfoById(qsf::StringHash(name));
  if (!info) throw NotThere(fmt::format("there is no order info '{}'", name));
  return *info;
}

int countPersonnel(const em5::OrderInfo& info, const std::string& person) {
  int count = 0;
  for (const em5::OrderInfo::StartPersonnel& personnel : info.getStartPersonnelList())
    if (personnel.orderInfo == person) count += personnel.count;
  return count;
}

Expectation expectNumber(WordCursor& words, std::function<int()> measure) {
  words.require("==");
  const double expected = words.takeNumber("the expected number");
  Expectation expectation;
  expectation.check = [expected, measure = std::move(measure)](TestSession&) {
    const int found = measure();
    return Verdict{numbersMatch(expected, found, std::nullopt), std::to_string(found), {}};
  };
  return expectation;
}

// `order NAME department == N|seats == N|personnel PERSON == N`
Expectation expectOrder(WordCursor& words) {
  const std::string name = words.take("the order info's name");
  if (words.takeIf("department")) return expectNumber(words, [name] { return findOrderInfo(name).getDepartment(); });
  if (words.takeIf("seats")) return expectNumber(words, [name] { return findOrderInfo(name).getPersonnelSpace(); });
  words.require("personnel");
  const std::string person = words.take("the person's order info");
  return expectNumber(words, [=] { return countPersonnel(findOrderInfo(name), person); });
}

const em5::UnitPool& findPool(std::uint64_t player) {
  const em5::Player* found = findGame().getPlayerManager()->getPlayerByIndex(static_cast<unsigned int>(player));
  if (!found) throw NotThere(fmt::format("there is no player {}", player));
  return found->getUnitPool();
}

// `pool PLAYER ORDER max|available|used == N`
Expectation expectPool(WordCursor& words) {
  const std::uint64_t player = words.takeId("the player's index");
  const std::string name = words.take("the order info's name");
  using Measure = int (em5::UnitPool::*)(const em5::OrderInfo&) const;
  Measure measure = &em5::UnitPool::getNumberInMap;
  if (words.takeIf("max"))
    measure = &em5::UnitPool::getNumberMaxAvailable;
  else if (words.takeIf("available"))
    measure = &em5::UnitPool::getNumberAvailable;
  else
    words.require("used");
  return expectNumber(words, [=] { return (findPool(player).*measure)(findOrderInfo(name)); });
}

}

std::optional<Expectation> readUnitExpectation(WordCursor& words) {
  if (words.takeIf("order")) return expectOrder(words);
  if (words.takeIf("pool")) return expectPool(words);
  return std::nullopt;
}

}
