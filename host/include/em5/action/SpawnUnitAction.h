#pragma once
#include "qsf/Export.h"

namespace qsf {
class Entity;
}

namespace em5 {

class OrderInfo;
class Player;

/// What makes an entity a player's unit. Both operations are noted in the call recorder.
class QSF_API SpawnUnitAction {
public:
  /// Gives the entity to the player as a unit of that kind: its em5::CommandableComponent, which is made if there is
  /// none, gets order info and player, and the player's unit pool counts it.
  static void setupCreatedEntityAsUnit(qsf::Entity& entity, const OrderInfo& orderInfo, Player& player);
  /// The same for one of a vehicle's crew, which no pool counts.
  static void setupCreatedEntityAsUnitPerson(qsf::Entity& person, const qsf::Entity& vehicle,
                                             const OrderInfo& orderInfo, const Player& player, bool isCrew);
};

}
