#include "em5/component/FireComponent.h"

#include "em5/base/Jobs.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/freeplay/FreeplaySystem.h"
#include "em5/freeplay/ObjectiveHelper.h"
#include "em5/health/Injury.h"
#include "em5/plugin/Plugin.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/map/EntityHelper.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <utility>

namespace em5 {

namespace {

/// Persons within that many units suffer from the heat.
constexpr float HEAT_RADIUS = 5.0f;
/// Health that they lose in a second: after 20 seconds in the heat a healthy person has burns.
constexpr float HEALTH_LOSS_PER_SECOND = 5.0f;
/// A vehicle that burns is destroyed after two minutes.
constexpr float VEHICLE_DAMAGE_PER_SECOND = 1.0f / 120.0f;
/// Reason in em5::EventIdComponent.
constexpr int PART_OF_EVENT = 1;

/// Null if it has ended, and for 0.
FreeplayEvent* findEvent(std::uint64_t id) {
  const Plugin* game = id != 0 ? Plugin::getInstance() : nullptr;
  return game ? game->getFreeplaySystem().getEventManager().getEventById(id) : nullptr;
}

}

static const qsf::DeclaredClass<FireComponent> declared;

void FireComponent::declareCamp() {
  camp::Class::declare<FireComponent>("em5::FireComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Burning", &FireComponent::isBurning, &FireComponent::setBurning)
      .property("Burnable", &FireComponent::isBurnable, &FireComponent::setBurnable);
}

void FireComponent::setBurning(bool burning) {
  mBurning = burning && mBurnable;
  if (!mBurning) leaveEvent();
  updateJob();
}

bool FireComponent::startFire(FreeplayEvent* event) {
  setBurning(true);
  if (mBurning && event) joinEvent(*event);
  return mBurning;
}

void FireComponent::joinEvent(FreeplayEvent& event) {
  qsf::Entity* entity = findEntity();
  if (!entity || findEvent(mEventId)) return; // it counts for one event only
  mEventId = event.getId();
  event.addEntityToEvent(*entity, PART_OF_EVENT);
  ObjectiveHelper(event).addFire(*entity);
}

void FireComponent::leaveEvent() {
  if (FreeplayEvent* event = findEvent(std::exchange(mEventId, 0)))
    ObjectiveHelper(*event).countExtinguishedFire(getEntity());
}

void FireComponent::setBurnable(bool burnable) {
  mBurnable = burnable;
  if (!burnable) stopFire();
}

bool FireComponent::onStartup() {
  updateJob();
  return true;
}

void FireComponent::onShutdown() {
  leaveEvent(); // what is gone burns no more
  mFireJobProxy.unregister();
}

void FireComponent::updateJob() {
  const bool burns = isRunning() && mBurning;
  if (burns == mFireJobProxy.isRegistered()) return;
  if (burns)
    mFireJobProxy.registerAt(Jobs::SIMULATION_FIRE, [this](const qsf::JobArguments& arguments) { burn(arguments); });
  else
    mFireJobProxy.unregister();
}

void FireComponent::burn(const qsf::JobArguments& arguments) {
  if (!isActive()) return;
  const float seconds = arguments.getTimePassed().getSeconds();
  qsf::Entity& entity = getEntity();
  const qsf::ComponentMapQuery query(entity.getMap());
  const glm::vec3 position = qsf::EntityHelper(entity).getPosition();
  for (HealthComponent* health : query.getInstancesInCircle<HealthComponent>(position, HEAT_RADIUS))
    health->hurt(HEALTH_LOSS_PER_SECOND * seconds, injury::BURN_3_GRADE);
  if (VehicleComponent* vehicle = entity.getComponent<VehicleComponent>())
    vehicle->applyDamage(VEHICLE_DAMAGE_PER_SECOND * seconds);
}

}
