#include "em5/map/EntityHelper.h"

#include "em5/component/BuildingComponent.h"
#include "em5/component/CommandableComponent.h"
#include "em5/component/EventIdComponent.h"
#include "em5/component/FireComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/HelicopterComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/RoadVehicleComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/game/Game.h"
#include "em5/logic/GangsterLogic.h"
#include "em5/order/OrderInfoManager.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/game/InventoryComponent.h"
#include "qsf/log/LogSystem.h"
#include "qsf/logic/GameLogicComponent.h"
#include "qsf/map/Map.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

#include <limits>

namespace em5 {

static const qsf::RecordedOperation turnIntoGangsterCall{"em5::EntityHelper::turnIntoGangster",
                                                         "class of the gangster's logic, `1` if nobody is told"};

bool EntityHelper::isVehicle() const {
  const qsf::Entity& entity = getEntity();
  return entity.getComponent<VehicleComponent>() || entity.getComponent<RoadVehicleComponent>() ||
         entity.getComponent<HelicopterComponent>();
}

bool EntityHelper::isSquadVehicle() const { return isVehicle() && getEntity().getComponent<CommandableComponent>(); }

bool EntityHelper::isSquadPerson() const {
  return getEntity().getComponent<PersonComponent>() && getEntity().getComponent<CommandableComponent>() &&
         !isGangsterPerson();
}

bool EntityHelper::isCivilPerson() const {
  return getEntity().getComponent<PersonComponent>() && !getEntity().getComponent<CommandableComponent>() &&
         !isGangsterPerson();
}

bool EntityHelper::isGangsterPerson() const {
  const PersonComponent* person = getEntity().getComponent<PersonComponent>();
  return person && person->isGangster();
}

bool EntityHelper::isPersonInjured() const {
  const HealthComponent* health = getEntity().getComponent<HealthComponent>();
  return health && health->isInjured();
}

bool EntityHelper::isBurning() const {
  const FireComponent* fire = getEntity().getComponent<FireComponent>();
  return fire && fire->isBurning();
}

bool EntityHelper::isBurnable() const {
  const FireComponent* fire = getEntity().getComponent<FireComponent>();
  return fire && fire->isBurnable();
}

bool EntityHelper::isSquadPersonInValidState() const { return isSquadPerson() && isPersonOutsideAndWell(); }

bool EntityHelper::isCivilPersonInValidState() const { return isCivilPerson() && isPersonOutsideAndWell(); }

bool EntityHelper::isSquadVehicleInValidState() const {
  const VehicleComponent* vehicle = getEntity().getComponent<VehicleComponent>();
  return isSquadVehicle() && !(vehicle && vehicle->isDestroyed());
}

bool EntityHelper::isSquadUnitInValidState() const {
  return isSquadPersonInValidState() || isSquadVehicleInValidState();
}

bool EntityHelper::isInMapBoundaries() const {
  const qsf::Map::Bounds& bounds = getEntity().getMap().getBounds();
  const glm::vec3 position = getPosition();
  return position.x >= bounds.minimumX && position.x <= bounds.maximumX && position.z >= bounds.minimumZ &&
         position.z <= bounds.maximumZ;
}

void EntityHelper::unlinkFromParent() const {
  if (qsf::LinkComponent* link = getEntity().getComponent<qsf::LinkComponent>()) link->unlinkFromParent();
  PersonComponent* person = getEntity().getComponent<PersonComponent>();
  if (person && person->getContainerId() != qsf::UNINITIALIZED_ID) {
    person->setContainerId(qsf::UNINITIALIZED_ID);
    getEntity().setHidden(false);
  }
}

void EntityHelper::setCollisionEnabled(bool enabled) const {
  if (auto* collision = getEntity().getComponent<qsf::BulletCollisionComponent>()) collision->setActive(enabled);
}

void EntityHelper::enterContainer(qsf::Entity& container) const {
  PersonComponent* person = getEntity().getComponent<PersonComponent>();
  if (!person || &container == &getEntity()) return;
  getEntity().getOrCreateComponent<qsf::LinkComponent>()->setParentId(container.getId());
  person->setContainerId(container.getId());
  getEntity().setHidden(true);
}

const OrderInfo* EntityHelper::getOrderInfo() const {
  const CommandableComponent* commandable = getEntity().getComponent<CommandableComponent>();
  const qsf::UniqueInstance<Game> game;
  return commandable && game ? game->getOrderInfoManager().getOrderInfoById(commandable->getOrderInfo()) : nullptr;
}

qsf::Entity* EntityHelper::getActiveEquipmentEntity() const {
  const PersonComponent* person = getEntity().getComponent<PersonComponent>();
  return person ? getEntityOnMap(person->getEquipmentId()) : nullptr;
}

qsf::Entity* EntityHelper::getReachableRoadVehicleWithEquipment(const std::string& equipmentName) const {
  const CommandableComponent* unit = getEntity().getComponent<CommandableComponent>();
  if (!unit) return nullptr;
  qsf::Entity* nearest = nullptr;
  float nearestDistance = std::numeric_limits<float>::infinity();
  for (const qsf::Component* component :
       getEntity().getMap().getComponentInstances(RoadVehicleComponent::COMPONENT_ID)) {
    qsf::Entity& vehicle = component->getEntity();
    const EntityHelper helper(vehicle);
    const auto* commandable = vehicle.getComponent<CommandableComponent>();
    const auto* inventory = vehicle.getComponent<qsf::game::InventoryComponent>();
    if (!commandable || commandable->getPlayerId() != unit->getPlayerId() || !inventory) continue;
    if (!helper.isSquadVehicleInValidState() || !helper.isInMapBoundaries()) continue;
    const float distance = glm::distance(getPosition(), helper.getPosition());
    if (distance >= nearestDistance || inventory->findItemByEquipmentName(equipmentName).empty()) continue;
    nearest = &vehicle;
    nearestDistance = distance;
  }
  return nearest;
}

FreeplayEvent* EntityHelper::getFreeplayEvent() const {
  const EventIdComponent* membership = getEntity().getComponent<EventIdComponent>();
  return membership ? membership->getFreeplayEvent() : nullptr;
}

void EntityHelper::turnIntoGangster(qsf::StringHash gangsterLogicId, bool isSilent) const {
  turnIntoGangsterCall.record({qsf::toText(gangsterLogicId), isSilent ? "1" : "0"});
  const camp::Class* wanted = qsf::ClassRegistry::findClass(gangsterLogicId);
  if (!wanted || !qsf::ClassRegistry::isOrDerivesFrom(*wanted, camp::classByType<GangsterBaseLogic>())) {
    qsf::logMessage(qsf::LogSystem::WARNING, "\"" + qsf::toText(gangsterLogicId) + "\" is no gangster logic");
    return;
  }
  auto* logics = getEntity().getOrCreateComponent<qsf::GameLogicComponent>();
  const auto* former = logics->getGameLogic<GangsterBaseLogic>();
  const bool flagged = former && former->isFlagged();
  if (former && &former->getCampClass() != wanted)
    logics->deleteGameLogicByTypeId(qsf::StringHash(former->getCampClass().name()));
  if (logics->createGameLogicByTypeId(gangsterLogicId))
    logics->getGameLogic<GangsterBaseLogic>()->setAsGangsterFlagged(flagged);
}

bool EntityHelper::startFire(FreeplayEvent* event) const {
  FireComponent* fire = getEntity().getComponent<FireComponent>();
  return fire && fire->startFire(event);
}

void EntityHelper::stopFire() const {
  if (FireComponent* fire = getEntity().getComponent<FireComponent>()) fire->stopFire();
}

bool EntityHelper::isPersonOutsideAndWell() const {
  const HealthComponent* health = getEntity().getComponent<HealthComponent>();
  if (health && (health->isInjured() || health->isDead())) return false;
  const PersonComponent* person = getEntity().getComponent<PersonComponent>();
  if (person && getEntityOnMap(person->getContainerId())) return false;
  // Whoever is linked to a vehicle or building is in it: maps and scripts put crews there that way.
  qsf::Entity* parent = getParentEntity();
  return !parent || !(EntityHelper(*parent).isVehicle() || parent->getComponent<BuildingComponent>());
}

qsf::Entity* EntityHelper::getEntityOnMap(std::uint64_t id) const { return getEntity().getMap().getEntityById(id); }

}
