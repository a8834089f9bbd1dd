#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/Orders.h"

#include "em5/action/SpawnUnitAction.h"
#include "em5/base/Messages.h"
#include "em5/map/MapHelper.h"
#include "qsf/Qsf.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/message/MessageSystem.h"

namespace script {

struct SpawnPlayerVehicleEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Without an entity to spawn at, a bare vehicle that belongs to nobody stays on the map, and no list gets it.",
      "A player who doesn't exist means player 0.",
      "A list called no_list counts as left empty.",
  };

  Argument orderInfo;
  Argument spawnpoint;
  bool spawnWithCrew = true;
  Argument entityListOut;
  Argument player;
  Argument userData;
};

static void read(SpawnPlayerVehicleEffect& effect, ParameterReader& in) {
  effect.orderInfo = in.of(ParameterRole::ORDER_INFO, 1, "DLK", "OrderInfo", "Kind of vehicle");
  effect.spawnpoint = in.list(2, "SpawnpointUnit", "Spawnpoint Id", "Entity at whose place it comes to be");
  effect.spawnWithCrew = in.flag(3, true, "Spawn with Crew", "Its crew comes along, and gets in");
  effect.entityListOut = in.listOut(4, "no_list", "EntityListOut", "List that gets the vehicle");
  effect.player = in.number(5, "0", "Player", "Index of the player whose vehicle it is");
  effect.userData = in.number(6, "556677", "mUserData",
                              "Number that the game's message tells; 556677 makes the listener of one map use a "
                              "park position");
}

/// As the game converts it: numbers from 2^63 up are no signed ones.
static std::uint64_t toUserData(float value) {
  if (!(value > -9223372036854775808.0f)) return std::uint64_t{1} << 63; // not a number, too
  if (value >= 18446744073709551616.0f) return std::uint64_t{1} << 63;
  return value >= 9223372036854775808.0f ? static_cast<std::uint64_t>(value)
                                         : static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
}

static em5::Player* findPlayerOrFirst(int index) {
  em5::Player* player = findPlayer(index);
  return player ? player : findPlayer(0);
}

static void takePlaceOf(const qsf::Entity& place, qsf::Entity& vehicle) {
  const auto* from = place.getComponent<qsf::TransformComponent>();
  auto* transform = vehicle.getComponent<qsf::TransformComponent>();
  if (from && transform) transform->setPositionAndRotation(from->getPosition(), from->getRotation());
}

static void run(const SpawnPlayerVehicleEffect& effect, ScenarioHandler& handler) {
  const em5::OrderInfo* orderInfo = findOrderInfo(handler.ResolveString(effect.orderInfo));
  if (!orderInfo) return;
  qsf::Entity* vehicle =
      em5::MapHelper(qsf::getMainMap()).createObjectByLocalPrefabAssetId(orderInfo->getPrefab().getLocalAssetId());
  if (!vehicle) return;
  const EntityIds places = handler.ResolveEntityList(effect.spawnpoint);
  const qsf::Entity* place = places.empty() ? nullptr : findEntity(places.front());
  if (!place) return;
  em5::Player* player = findPlayerOrFirst(truncateToInt(handler.ResolveFloat(effect.player)));
  if (!player) return;
  em5::SpawnUnitAction::setupCreatedEntityAsUnit(*vehicle, *orderInfo, *player);
  takePlaceOf(*place, *vehicle);
  registerMinimapIcon(*vehicle, *orderInfo);
  if (effect.spawnWithCrew) spawnCrew(*vehicle, *orderInfo, *player);
  qsf::Qsf::instance()->getMessageSystem().emitMessage(
      qsf::MessageConfiguration(em5::Messages::EM5_SPAWN_UNIT, vehicle->getId(), place->getId(),
                                toUserData(handler.ResolveFloat(effect.userData))));
  if (effect.entityListOut != "" && effect.entityListOut != "no_list")
    handler.AddToEntityList(effect.entityListOut, vehicle->getId());
}

EFFECT(SpawnPlayerVehicle, "Units", "Makes a vehicle of a player's, with its crew, ready for use")

}
