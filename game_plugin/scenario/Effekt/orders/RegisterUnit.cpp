#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Orders.h"

#include "em5/action/SpawnUnitAction.h"
#include "em5/component/CommandableComponent.h"

namespace script {

struct RegisterUnitEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Whoever the unit belongs to, it is registered with player 0; its crew is the local player's.",
  };

  Argument entityList;
  Argument orderInfo;
  bool spawnWithCrew = false;
};

static void read(RegisterUnitEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList",
                              "Entities that become units; those without "
                              "em5::CommandableComponent are passed over");
  effect.orderInfo = in.of(ParameterRole::ORDER_INFO, 2, "no_info", "OrderInfo", "Kind of unit");
  effect.spawnWithCrew = in.flag(3, false, "SpawnWithCrew", "The kind's crew comes to be, and gets in");
}

static void run(const RegisterUnitEffect& effect, ScenarioHandler& handler) {
  const em5::OrderInfo* orderInfo = findOrderInfo(handler.ResolveString(effect.orderInfo));
  if (!orderInfo) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    em5::Player* first = findPlayer(0);
    const em5::Player* local = findLocalPlayer();
    if (!entity.getComponent<em5::CommandableComponent>() || !first || !local) return;
    em5::SpawnUnitAction::setupCreatedEntityAsUnit(entity, *orderInfo, *first);
    registerMinimapIcon(entity, *orderInfo);
    if (effect.spawnWithCrew) spawnCrew(entity, *orderInfo, *local);
  });
}

EFFECT(RegisterUnit, "Units", "Makes objects of the map units of a kind")

}
