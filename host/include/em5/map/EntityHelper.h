#pragma once
#include "qsf/base/Ids.h"
#include "qsf/base/StringHash.h"
#include "qsf/map/EntityHelper.h"

#include <cstdint>
#include <string>

namespace em5 {

class FreeplayEvent;
class OrderInfo;

/// What kind of unit an entity is and how it is, asked in the game's words. Made on the spot; lives no longer than the
/// entity. Squad units are those of a player: they have an em5::CommandableComponent.
class QSF_API EntityHelper : public qsf::EntityHelper {
public:
  explicit EntityHelper(qsf::Entity& entity) : qsf::EntityHelper(entity) {}

  bool isVehicle() const;
  bool isSquadVehicle() const;
  bool isSquadPerson() const;
  /// A person that is neither a player's nor a gangster.
  bool isCivilPerson() const;
  bool isGangsterPerson() const;
  bool isPersonInjured() const;
  bool isBurning() const;
  bool isBurnable() const;

  /// Alive, not injured, and neither inside nor linked to a vehicle or building.
  bool isSquadPersonInValidState() const;
  bool isCivilPersonInValidState() const;
  /// Not destroyed.
  bool isSquadVehicleInValidState() const;
  /// One of the two for squad units, false for all others.
  bool isSquadUnitInValidState() const;
  /// Within the map's bounds, borders included; height doesn't matter.
  bool isInMapBoundaries() const;

  /// Null while unlinked.
  qsf::Entity* getParentEntity() const { return getParent(); }
  /// The event that the entity belongs to; null without one.
  FreeplayEvent* getFreeplayEvent() const;
  void unlinkFromParent() const;
  /// Off, nothing meets the entity's box any more: its qsf::BulletCollisionComponent isn't active.
  void setCollisionEnabled(bool enabled) const;
  /// Puts a person into a vehicle or building: linked to it and hidden. Unlinking lets it out again.
  void enterContainer(qsf::Entity& container) const;
  /// Null outside a game, for what is no unit, and for an order info that doesn't exist.
  const OrderInfo* getOrderInfo() const;
  /// Null if the person holds none, or if what it held is gone.
  qsf::Entity* getActiveEquipmentEntity() const;

  /// The nearest road vehicle of this unit's player that has equipment of that name on board, is in a valid state and
  /// within the map; the first of equally near ones. Null if there is none or this is no player's unit.
  qsf::Entity* getReachableRoadVehicleWithEquipment(const std::string& equipmentName) const;

  /// Gives a person the logic of that class, which derives from GangsterBaseLogic, in the place of another such one. A
  /// class that isn't one does nothing and is logged at severity 3. `isSilent` is kept for those who read records.
  void turnIntoGangster(qsf::StringHash gangsterLogicId, bool isSilent) const;

  /// Makes the entity burn, if it can, as a part of the event if one is given (see FireComponent). Returns whether it
  /// burns.
  bool startFire(FreeplayEvent* event = nullptr) const;
  void stopFire() const;

private:
  bool isPersonOutsideAndWell() const;
  qsf::Entity* getEntityOnMap(std::uint64_t id) const;
};

}
