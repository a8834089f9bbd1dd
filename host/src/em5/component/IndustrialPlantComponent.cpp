#include "em5/component/IndustrialPlantComponent.h"

#include "em5/base/Jobs.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/health/Injury.h"
#include "em5/map/EntityHelper.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>

namespace em5 {

namespace {

constexpr float GROWTH_PER_SECOND = 0.5f;
constexpr float LARGEST_RADIUS = 20.0f;
/// Health that persons in the cloud lose in a second.
constexpr float HEALTH_LOSS_PER_SECOND = 2.0f;
/// So long the cloud stays when the fire is out.
constexpr qsf::Time VANISHING_TIME = qsf::Time::fromMicroseconds(30'000'000);

bool isProtected(const qsf::Entity& entity) {
  const auto* person = entity.getComponent<PersonComponent>();
  return person && (person->isMasked() || entity.getMap().getEntityById(person->getContainerId()));
}

}

static const qsf::DeclaredClass<IndustrialPlantComponent> declared;

void IndustrialPlantComponent::declareCamp() {
  camp::Class::declare<IndustrialPlantComponent>("em5::IndustrialPlantComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Simulating", &IndustrialPlantComponent::isSimulating, &IndustrialPlantComponent::setSimulating)
      .property("CloudRadius", &IndustrialPlantComponent::getCloudRadius);
}

void IndustrialPlantComponent::setSimulating(bool simulating) {
  if (simulating == mSimulating) return;
  mSimulating = simulating;
  mCloudRadius = 0.0f;
  mHasBurned = false;
  updateJob();
}

bool IndustrialPlantComponent::onStartup() {
  updateJob();
  return true;
}

void IndustrialPlantComponent::onShutdown() { mCloudJobProxy.unregister(); }

void IndustrialPlantComponent::updateJob() {
  const bool isAtWork = isRunning() && mSimulating;
  if (isAtWork == mCloudJobProxy.isRegistered()) return;
  if (isAtWork)
    mCloudJobProxy.registerAt(Jobs::SIMULATION_LOGIC,
                              [this](const qsf::JobArguments& arguments) { update(arguments.getTimePassed()); });
  else
    mCloudJobProxy.unregister();
}

void IndustrialPlantComponent::update(qsf::Time timePassed) {
  if (!isActive()) return;
  const float seconds = timePassed.getSeconds();
  mCloudRadius = std::min(mCloudRadius + GROWTH_PER_SECOND * seconds, LARGEST_RADIUS);
  const EntityHelper helper(getEntity());
  const qsf::ComponentMapQuery query(getEntity().getMap());
  for (HealthComponent* health : query.getInstancesInCircle<HealthComponent>(helper.getPosition(), mCloudRadius))
    if (!isProtected(health->getEntity()))
      health->hurt(HEALTH_LOSS_PER_SECOND * seconds, injury::CHEMICAL_CONTAMINATION);
  if (helper.isBurning()) {
    mHasBurned = true;
    mTimeToVanish = VANISHING_TIME;
  } else if (mHasBurned && (mTimeToVanish -= timePassed) <= qsf::Time()) {
    setSimulating(false);
  }
}

}
