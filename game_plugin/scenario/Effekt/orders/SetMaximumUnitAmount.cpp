#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Orders.h"

#include "em5/component/UnitSpawnPointComponent.h"
#include "em5/game/Game.h"
#include "em5/order/OrderInfoManager.h"
#include "qsf/Qsf.h"
#include "qsf/map/ComponentMapQuery.h"

#include <algorithm>

namespace script {

struct SetMaximumUnitAmountEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "\"All\" leaves the kinds of units as they are that no usable spawn point of the map offers.",
  };

  Argument orderInfo;
  Argument number;
  bool absoluteAmount = true;
  Argument playerId;
};

static void read(SetMaximumUnitAmountEffect& effect, ParameterReader& in) {
  effect.orderInfo = in.of(ParameterRole::ORDER_INFO, 1, "DLK", "EM5 OrderInfo", "Kind of unit, or All");
  effect.number = in.number(2, "5", "Number", "New maximum, or what is added to it");
  effect.absoluteAmount = in.flag(3, true, "AbsoluteAmount", "true sets the maximum, false changes it by the number");
  effect.playerId = in.number(4, "0", "PlayerId", "Index of the player");
}

static bool isOffered(const std::string& orderName) {
  const qsf::ComponentMapQuery query(qsf::getMainMap());
  return std::ranges::any_of(query.getAllInstances<em5::UnitSpawnPointComponent>(), [&](const auto* point) {
    return !point->isDisabled() && std::ranges::find(point->getList(), orderName) != point->getList().end();
  });
}

static void setMaximumOfAll(const SetMaximumUnitAmountEffect& effect, ScenarioHandler& handler,
                            const em5::OrderInfoManager& orderInfos, em5::UnitPool& pool) {
  for (const auto& element : orderInfos.getOrderInfos()) {
    const std::string& name = element->getName();
    const em5::OrderInfo* orderInfo = findOrderInfo(name);
    if (!orderInfo) continue;
    const int number = truncateToInt(handler.ResolveFloat(effect.number));
    const int delta = number - pool.getNumberMaxAvailable(*orderInfo);
    if (isOffered(name)) pool.increaseNumberAvailable(name, effect.absoluteAmount ? delta : number);
  }
}

static void setMaximumOf(const std::string& name, const SetMaximumUnitAmountEffect& effect, ScenarioHandler& handler,
                         em5::UnitPool& pool) {
  const em5::OrderInfo* orderInfo = findOrderInfo(name);
  if (!orderInfo) return logInfo("SetMaximumUnitAmount: cant find orderinfo: \"" + name + "\".");
  const int number = truncateToInt(handler.ResolveFloat(effect.number));
  const int delta = number - pool.getNumberMaxAvailable(*orderInfo);
  if (!effect.absoluteAmount)
    pool.increaseNumberAvailable(name, number);
  else if (delta != 0)
    pool.increaseNumberAvailable(name, delta);
}

static void run(const SetMaximumUnitAmountEffect& effect, ScenarioHandler& handler) {
  const qsf::UniqueInstance<em5::Game> game;
  if (!game) return;
  const int playerId = truncateToInt(handler.ResolveFloat(effect.playerId));
  if (static_cast<int>(game->getPlayerManager()->getAllPlayers().size()) < playerId) return;
  em5::Player* player = findPlayer(playerId);
  if (!player) return;
  const std::string name = handler.ResolveString(effect.orderInfo);
  if (name == "All")
    setMaximumOfAll(effect, handler, game->getOrderInfoManager(), player->getUnitPool());
  else
    setMaximumOf(name, effect, handler, player->getUnitPool());
}

EFFECT(SetMaximumUnitAmount, "Units", "Sets how many units of a kind a player may have")

}
