#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Orders.h"

namespace script {

struct UnregisterUnitEffect : DefaultEffect {
  Argument entityList;
  Argument orderInfo;
  Argument playerId;
};

static void read(UnregisterUnitEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Units that the player's pool no longer counts");
  effect.orderInfo = in.of(ParameterRole::ORDER_INFO, 2, "RTW", "OrderInfo", "Kind of unit");
  effect.playerId = in.number(3, "0", "PlayerId", "Index of the player");
}

static void run(const UnregisterUnitEffect& effect, ScenarioHandler& handler) {
  em5::Player* player = findPlayer(truncateToInt(handler.ResolveFloat(effect.playerId)));
  if (!player) return;
  const em5::OrderInfo* orderInfo = findOrderInfo(handler.ResolveString(effect.orderInfo));
  if (!orderInfo) return;
  for (const std::uint64_t id : handler.ResolveEntityList(effect.entityList))
    player->getUnitPool().unregisterUnitInMap(*orderInfo, id);
}

EFFECT(UnregisterUnit, "Units", "Takes units off the player's pool, so that others of their kind can be ordered")

}
