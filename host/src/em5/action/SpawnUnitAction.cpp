#include "em5/action/SpawnUnitAction.h"

#include "em5/component/CommandableComponent.h"
#include "em5/game/Player.h"
#include "em5/order/OrderInfo.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/map/Entity.h"

namespace em5 {

namespace {

const qsf::RecordedOperation unitCall{"em5::SpawnUnitAction::setupCreatedEntityAsUnit", "entity, order info, player"};
const qsf::RecordedOperation personCall{"em5::SpawnUnitAction::setupCreatedEntityAsUnitPerson",
                                        "person, vehicle, order info, player, `1` for a crew"};

void giveTo(qsf::Entity& entity, const OrderInfo& orderInfo, const Player& player) {
  auto* commandable = entity.getOrCreateComponent<CommandableComponent>();
  commandable->setOrderInfo(orderInfo.getName());
  commandable->setPlayerId(static_cast<int>(player.getPlayerIndex()));
}

}

void SpawnUnitAction::setupCreatedEntityAsUnit(qsf::Entity& entity, const OrderInfo& orderInfo, Player& player) {
  unitCall.record({std::to_string(entity.getId()), orderInfo.getName(), std::to_string(player.getPlayerIndex())});
  giveTo(entity, orderInfo, player);
  player.getUnitPool().registerUnitInMap(orderInfo, entity.getId());
}

void SpawnUnitAction::setupCreatedEntityAsUnitPerson(qsf::Entity& person, const qsf::Entity& vehicle,
                                                     const OrderInfo& orderInfo, const Player& player, bool isCrew) {
  personCall.record({std::to_string(person.getId()), std::to_string(vehicle.getId()), orderInfo.getName(),
                     std::to_string(player.getPlayerIndex()), isCrew ? "1" : "0"});
  giveTo(person, orderInfo, player);
}

}
