#include "em5/component/VehicleComponent.h"

#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/freeplay/FreeplayEvent.h"
#include "em5/freeplay/ObjectiveHelper.h"
#include "em5/map/EntityHelper.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace em5 {

namespace {

/// Who is cut out lies that far beside the vehicle.
constexpr float SIDE_DISTANCE = 1.0f;

bool isInjuredInside(const qsf::Entity& entity, std::uint64_t vehicleId) {
  const auto* person = entity.getComponent<PersonComponent>();
  const auto* health = entity.getComponent<HealthComponent>();
  return person && person->getContainerId() == vehicleId && health && (health->isInjured() || health->isDead());
}

}

static const qsf::DeclaredClass<VehicleComponent> declared;

void VehicleComponent::declareCamp() {
  camp::Class::declare<VehicleComponent>("em5::VehicleComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("CanBeTowed", &VehicleComponent::getCanBeTowed, &VehicleComponent::setCanBeTowed)
      .property("CanBeCut", &VehicleComponent::getCanBeCut, &VehicleComponent::setCanBeCutByReflection)
      .property("SirenEnabled", &VehicleComponent::isSirenEnabled, &VehicleComponent::setSirenEnabled)
      .property("Damage", &VehicleComponent::getDamage, &VehicleComponent::setDamage);
}

void VehicleComponent::setCanBeCut(bool canBeCut, FreeplayEvent* event) {
  const qsf::Entity* entity = findEntity();
  const bool couldBeCut = std::exchange(mCanBeCut, canBeCut);
  if (!entity) return;
  if (canBeCut && event && !ObjectiveHelper::findEvent(mCutEventId)) {
    mCutEventId = event->getId();
    ObjectiveHelper(*event).addTask(ObjectiveHelper::CUT_VEHICLES, 1, entity);
  }
  if (canBeCut || !couldBeCut || !isRunning()) return;
  letInjuredOut();
  if (FreeplayEvent* waiting = ObjectiveHelper::findEvent(std::exchange(mCutEventId, 0)))
    ObjectiveHelper(*waiting).countTask(ObjectiveHelper::CUT_VEHICLES, entity);
}

void VehicleComponent::letInjuredOut() {
  const auto* link = getEntity().getComponent<qsf::LinkComponent>();
  if (!link) return;
  std::vector<qsf::Entity*> injured;
  for (const qsf::LinkComponent* child : link->getChildLinks())
    if (isInjuredInside(child->getEntity(), getEntityId())) injured.push_back(&child->getEntity());
  const EntityHelper helper(getEntity());
  const auto* box = getEntity().getComponent<qsf::BulletCollisionComponent>();
  const glm::vec3 beside((box ? box->getSize().x / 2 : 0) + SIDE_DISTANCE, 0, 0);
  for (qsf::Entity* person : injured) {
    EntityHelper(*person).unlinkFromParent();
    person->getOrCreateComponent<qsf::TransformComponent>()->setPosition(helper.getPosition() +
                                                                         helper.getRotation() * beside);
  }
}

void VehicleComponent::onShutdown() {
  // What is gone can't be cut any more.
  if (FreeplayEvent* event = ObjectiveHelper::findEvent(std::exchange(mCutEventId, 0)))
    ObjectiveHelper(*event).withdrawTask(ObjectiveHelper::CUT_VEHICLES, 1, &getEntity());
}

void VehicleComponent::setDamage(float damage) {
  if (std::isnan(damage)) return;
  const bool wasDestroyed = isDestroyed();
  mDamage = std::clamp(damage, 0.0f, 1.0f);
  if (isDestroyed() && !wasDestroyed) mSirenEnabled = false;
}

void VehicleComponent::applyDamage(float damage, FreeplayEvent* event) {
  constexpr int PART_OF_EVENT = 1;
  if (event) event->addEntityToEvent(getEntity(), PART_OF_EVENT);
  setDamage(mDamage + damage);
}

}
