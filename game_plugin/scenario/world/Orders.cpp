#include "game_plugin/scenario/world/Orders.h"

#include "game_plugin/scenario/Log.h"

#include "em5/action/EnterVehicleAction.h"
#include "em5/action/SpawnUnitAction.h"
#include "em5/game/Game.h"
#include "em5/map/MiniMapIconRegistrationLogic.h"
#include "em5/order/OrderInfoManager.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/map/Map.h"

#include <algorithm>

namespace script {

const em5::OrderInfo* findOrderInfo(const std::string& name) { return findOrderInfoForWriting(name); }

em5::OrderInfo* findOrderInfoForWriting(const std::string& name) {
  const qsf::UniqueInstance<em5::Game> game;
  return game ? game->getOrderInfoManager().getOrderInfoByIdForWriting(qsf::StringHash(name)) : nullptr;
}

em5::Player* findPlayer(int index) {
  const qsf::UniqueInstance<em5::Game> game;
  return game ? game->getPlayerManager()->getPlayerByIndex(static_cast<unsigned int>(index)) : nullptr;
}

em5::Player* findLocalPlayer() {
  const qsf::UniqueInstance<em5::Game> game;
  return game ? game->getPlayerManager()->getLocalPlayer() : nullptr;
}

static void spawnPerson(qsf::Entity& vehicle, const em5::OrderInfo& orderInfo, const em5::Player& player) {
  qsf::Entity* person = vehicle.getMap().createObjectByLocalPrefabAssetId(orderInfo.getPrefab().getLocalAssetId());
  if (!person) return;
  em5::SpawnUnitAction::setupCreatedEntityAsUnitPerson(*person, vehicle, orderInfo, player, true);
  person->getOrCreateComponent<qsf::ActionComponent>()
      ->pushAction<em5::EnterVehicleAction>(qsf::ActionComponent::DEFAULT_PRIORITY, qsf::action::APPEND_TO_BACK)
      .init(vehicle, em5::EnterVehicleAction::AT_ONCE);
}

/// A script may have asked for any number.
static constexpr std::int32_t MAXIMUM_CREW = 1000;

void spawnCrew(qsf::Entity& vehicle, const em5::OrderInfo& orderInfo, const em5::Player& player) {
  for (const em5::OrderInfo::StartPersonnel& personnel : orderInfo.getStartPersonnelList()) {
    const em5::OrderInfo* person = findOrderInfo(personnel.orderInfo);
    if (!person) continue;
    if (personnel.count > MAXIMUM_CREW)
      logError("A crew of " + std::to_string(personnel.count) + " " + personnel.orderInfo + " is too large; " +
               std::to_string(MAXIMUM_CREW) + " come");
    for (std::int32_t i = 0; i < std::min(personnel.count, MAXIMUM_CREW); ++i)
      spawnPerson(vehicle, *person, player);
  }
}

void registerMinimapIcon(const qsf::Entity& unit, const em5::OrderInfo& orderInfo) {
  const qsf::UniqueInstance<em5::Game> game;
  if (!game) return;
  const qsf::StringHash icon(orderInfo.getMiniMapIconType());
  game->getMiniMapIconRegistrationLogic().registerIcon(
      unit.getId(), em5::MiniMapIconRegistrationLogic::translateCommandableMiniMapIconType(icon), false);
}

}
