#include "em5/component/FireComponent.h"

#include "em5/base/Jobs.h"
#include "em5/component/BuildingComponent.h"
#include "em5/component/DamageComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/freeplay/FreeplayEvent.h"
#include "em5/freeplay/ObjectiveHelper.h"
#include "em5/health/Injury.h"
#include "em5/map/EntityHelper.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <cmath>
#include <limits>
#include <utility>

namespace em5 {

namespace {

/// Persons within that many units suffer from the heat.
constexpr float HEAT_RADIUS = 5.0f;
/// Health that they lose in a second: after 20 seconds in the heat a healthy person has burns.
constexpr float HEALTH_LOSS_PER_SECOND = 5.0f;
/// A vehicle that burns is destroyed after two minutes.
constexpr float VEHICLE_DAMAGE_PER_SECOND = 1.0f / 120.0f;
/// What burns lights one neighbour in that time, the nearest that can burn, within that many units.
constexpr qsf::Time SPREADING_TIME = qsf::Time::fromMicroseconds(60'000'000);
constexpr float SPREADING_RADIUS = 10.0f;
/// After that time nothing is left to burn.
constexpr qsf::Time BURNING_TIME = qsf::Time::fromMicroseconds(600'000'000);
/// Reason in em5::EventIdComponent.
constexpr int PART_OF_EVENT = 1;

/// Walls keep the heat off; how long somebody lasts in there is the building's matter.
bool isInBuilding(const qsf::Entity& entity) {
  const auto* person = entity.getComponent<PersonComponent>();
  const qsf::Entity* container = person ? entity.getMap().getEntityById(person->getContainerId()) : nullptr;
  return container && container->getComponent<BuildingComponent>();
}

float distanceInGroundPlane(const glm::vec3& a, const glm::vec3& b) { return std::hypot(a.x - b.x, a.z - b.z); }

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
  const bool wasBurning = std::exchange(mBurning, burning && mBurnable);
  if (!mBurning) leaveEvent();
  if (mBurning && !wasBurning) breakOut();
  if (!mBurning && wasBurning) goOut();
  updateJob();
}

void FireComponent::breakOut() {
  mTimeToSpread = SPREADING_TIME;
  mTimeToBurn = BURNING_TIME;
  const qsf::Entity* entity = findEntity();
  if (auto* damage = entity ? entity->getComponent<DamageComponent>() : nullptr)
    damage->worsenDamageState(DamageComponent::DAMAGED);
}

void FireComponent::goOut() {
  const qsf::Entity* entity = isRunning() ? findEntity() : nullptr;
  if (auto* building = entity ? entity->getComponent<BuildingComponent>() : nullptr) building->onFireIsOut();
}

bool FireComponent::startFire(FreeplayEvent* event) {
  setBurning(true);
  if (mBurning && event) joinEvent(*event);
  return mBurning;
}

void FireComponent::joinEvent(FreeplayEvent& event) {
  qsf::Entity* entity = findEntity();
  if (!entity) return;
  auto* building = entity->getComponent<BuildingComponent>();
  if (building && building->getTrappedPersons() > 0) building->createTrappedPerson(&event);
  if (ObjectiveHelper::findEvent(mEventId)) return; // it counts for one event only
  mEventId = event.getId();
  event.addEntityToEvent(*entity, PART_OF_EVENT);
  ObjectiveHelper(event).addTask(ObjectiveHelper::EXTINGUISH_FIRES, 1, entity);
}

void FireComponent::leaveEvent() {
  if (FreeplayEvent* event = ObjectiveHelper::findEvent(std::exchange(mEventId, 0)))
    ObjectiveHelper(*event).countTask(ObjectiveHelper::EXTINGUISH_FIRES, &getEntity());
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
  const qsf::Time timePassed = arguments.getTimePassed();
  heat(timePassed);
  mTimeToSpread -= timePassed;
  if (mTimeToSpread <= qsf::Time()) {
    mTimeToSpread = SPREADING_TIME;
    spread();
  }
  mTimeToBurn -= timePassed;
  if (mTimeToBurn <= qsf::Time()) burnOut();
}

void FireComponent::heat(qsf::Time timePassed) const {
  const float seconds = timePassed.getSeconds();
  const qsf::ComponentMapQuery query(getEntity().getMap());
  const glm::vec3 position = EntityHelper(getEntity()).getPosition();
  for (HealthComponent* health : query.getInstancesInCircle<HealthComponent>(position, HEAT_RADIUS))
    if (!isInBuilding(health->getEntity())) health->hurt(HEALTH_LOSS_PER_SECOND * seconds, injury::BURN_3_GRADE);
  if (VehicleComponent* vehicle = getEntity().getComponent<VehicleComponent>())
    vehicle->applyDamage(VEHICLE_DAMAGE_PER_SECOND * seconds);
}

void FireComponent::spread() const {
  const glm::vec3 position = EntityHelper(getEntity()).getPosition();
  FireComponent* nearest = nullptr;
  float nearestDistance = std::numeric_limits<float>::infinity();
  const qsf::ComponentMapQuery query(getEntity().getMap());
  for (FireComponent* fire : query.getInstancesInCircle<FireComponent>(position, SPREADING_RADIUS)) {
    const EntityHelper helper(fire->getEntity());
    if (!fire->isActive() || !fire->isBurnable() || fire->isBurning() || helper.isVehicle()) continue;
    const float distance = distanceInGroundPlane(position, helper.getPosition());
    if (distance >= nearestDistance) continue;
    nearest = fire;
    nearestDistance = distance;
  }
  if (nearest) nearest->startFire(ObjectiveHelper::findEvent(mEventId));
}

void FireComponent::burnOut() {
  if (auto* damage = getEntity().getComponent<DamageComponent>()) damage->worsenDamageState(DamageComponent::BURNT_OUT);
  setBurnable(false);
}

}
