#include "em5/component/MoveToDespawnComponent.h"

#include "em5/base/Jobs.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/map/EntityHelper.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <cmath>

namespace em5 {

namespace {

/// An entity that is this near, in the ground plane, has arrived. Heights don't count: the ground carries it.
constexpr float ARRIVAL_DISTANCE = 0.5f;

}

static const qsf::DeclaredClass<MoveToDespawnComponent> declared;

void MoveToDespawnComponent::declareCamp() {
  camp::Class::declare<MoveToDespawnComponent>("em5::MoveToDespawnComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("TargetPosition", &MoveToDespawnComponent::getTargetPosition,
                &MoveToDespawnComponent::setTargetPosition)
      .property("Despawning", &MoveToDespawnComponent::isDespawning, &MoveToDespawnComponent::setDespawning);
}

void MoveToDespawnComponent::setTargetPosition(const glm::vec3& position) {
  if (!std::isfinite(position.x) || !std::isfinite(position.y) || !std::isfinite(position.z)) return;
  mTargetPosition = position;
  setDespawning(true);
}

void MoveToDespawnComponent::setDespawning(bool despawning) {
  mDespawning = despawning;
  updateJob();
}

bool MoveToDespawnComponent::onStartup() {
  updateJob();
  return true;
}

void MoveToDespawnComponent::onShutdown() { mMoveJobProxy.unregister(); }

void MoveToDespawnComponent::onSetActive(bool) { updateJob(); }

void MoveToDespawnComponent::updateJob() {
  if (!isRunning()) return;
  if (mDespawning && isActive())
    mMoveJobProxy.registerAt(Jobs::SIMULATION_LOGIC, [this](const qsf::JobArguments&) { move(); });
  else
    mMoveJobProxy.unregister();
}

void MoveToDespawnComponent::move() {
  qsf::Entity& entity = getEntity();
  const glm::vec3 way = mTargetPosition - qsf::EntityHelper(entity).getPosition();
  if (std::hypot(way.x, way.z) <= ARRIVAL_DISTANCE) {
    mMoveJobProxy.unregister();
    entity.getMap().destroyObjectById(entity.getId());
    return;
  }
  // Anew whenever something else has stopped it or sent it elsewhere.
  qsf::MovableComponent* movable = entity.getComponent<qsf::MovableComponent>();
  if (movable && (!movable->isMoving() || movable->getTargetPosition() != mTargetPosition))
    movable->moveToPosition(mTargetPosition);
}

}
