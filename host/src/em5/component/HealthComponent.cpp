#include "em5/component/HealthComponent.h"

#include "em5/base/Jobs.h"
#include "em5/freeplay/FreeplayEvent.h"
#include "em5/health/Injury.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>
#include <cmath>

namespace em5 {

namespace {

/// Life that an injured person loses in a second: with full life it is dead after 200 seconds.
constexpr float LIFE_LOSS_PER_SECOND = 0.5f;
/// Reason in em5::EventIdComponent.
constexpr int PART_OF_EVENT = 1;

}

static const qsf::DeclaredClass<HealthComponent> declared;

void HealthComponent::declareCamp() {
  camp::Class::declare<HealthComponent>("em5::HealthComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Injured", &HealthComponent::isInjured, &HealthComponent::setInjured)
      .property("Injury", &HealthComponent::getInjuryId, &HealthComponent::setInjuryByReflection)
      .property("Dead", &HealthComponent::isDead, &HealthComponent::setDeadByReflection)
      .property("Collapsed", &HealthComponent::isCollapsed)
      .property("LifeEnergy", &HealthComponent::getLifeEnergy, &HealthComponent::setLifeEnergy)
      .property("HealthEnergy", &HealthComponent::getHealthEnergy, &HealthComponent::setHealthEnergyByReflection)
      .property("MaximumLifeEnergy", &HealthComponent::getMaximumLifeEnergy, &HealthComponent::setMaximumLifeEnergy)
      .property("MaximumHealthEnergy", &HealthComponent::getMaximumHealthEnergy,
                &HealthComponent::setMaximumHealthEnergy);
}

void HealthComponent::setInjured(bool injured) {
  if (injured) {
    injurePersonById(injury::HEAD_BODY_LACERATION);
  } else if (mInjured && !isDead()) {
    mInjured = false;
    mCollapsed = false;
    mInjuryId = qsf::StringHash();
    mHealthEnergy = mMaximumHealthEnergy;
    updateJob();
  }
}

void HealthComponent::setInjuryByReflection(qsf::StringHash injuryId) {
  if (!injuryId.isInitialized())
    setInjured(false);
  else if (!injurePersonById(injuryId) && mInjured)
    mInjuryId = injuryId;
}

bool HealthComponent::injurePersonById(qsf::StringHash injuryId) { return injurePersonByEventById(injuryId, nullptr); }

bool HealthComponent::injurePersonByEventById(qsf::StringHash injuryId, FreeplayEvent* event, bool collapse) {
  if (mInjured || isDead() || !injuryId.isInitialized()) return false;
  mInjured = true;
  mCollapsed = collapse;
  if (event) event->addEntityToEvent(getEntity(), PART_OF_EVENT);
  mInjuryId = injuryId;
  mHealthEnergy = 0.0f;
  updateJob();
  return true;
}

void HealthComponent::setDeadByReflection(bool dead) {
  if (dead) killPerson();
}

void HealthComponent::killPerson(FreeplayEvent* event) {
  mLifeEnergy = 0.0f;
  if (event) event->addEntityToEvent(getEntity(), PART_OF_EVENT);
  updateJob();
}

// The maximum cuts when the value is read, so that the order in which a file sets energies and maxima doesn't matter.

float HealthComponent::getLifeEnergy() const { return std::min(mLifeEnergy, mMaximumLifeEnergy); }

float HealthComponent::getHealthEnergy() const { return std::min(mHealthEnergy, mMaximumHealthEnergy); }

void HealthComponent::setLifeEnergy(float energy) {
  if (std::isnan(energy)) return;
  mLifeEnergy = std::max(energy, 0.0f);
  updateJob();
}

void HealthComponent::setHealthEnergy(float energy) {
  if (!std::isnan(energy)) mHealthEnergy = std::max(energy, 0.0f);
}

void HealthComponent::setHealthEnergyByReflection(float energy) {
  setHealthEnergy(energy);
  if (mHealthEnergy <= 0.0f) injurePersonById(injury::HEAD_BODY_LACERATION);
}

void HealthComponent::setMaximumLifeEnergy(float energy) {
  if (!std::isnan(energy)) mMaximumLifeEnergy = std::max(energy, 1.0f);
}

void HealthComponent::setMaximumHealthEnergy(float energy) {
  if (!std::isnan(energy)) mMaximumHealthEnergy = std::max(energy, 1.0f);
}

void HealthComponent::hurt(float energy, qsf::StringHash injuryId) {
  if (mInjured || isDead() || !(energy > 0.0f)) return;
  const float left = getHealthEnergy() - energy;
  if (left > 0.0f)
    mHealthEnergy = left;
  else
    injurePersonById(injuryId);
}

bool HealthComponent::onStartup() {
  updateJob();
  return true;
}

void HealthComponent::onShutdown() { mLifeJobProxy.unregister(); }

void HealthComponent::updateJob() {
  const bool fading = isRunning() && mInjured && !isDead();
  if (fading == mLifeJobProxy.isRegistered()) return;
  if (fading)
    mLifeJobProxy.registerAt(Jobs::SIMULATION_LOGIC,
                             [this](const qsf::JobArguments& arguments) { loseLife(arguments); });
  else
    mLifeJobProxy.unregister();
}

void HealthComponent::loseLife(const qsf::JobArguments& arguments) {
  if (isActive()) setLifeEnergy(getLifeEnergy() - LIFE_LOSS_PER_SECOND * arguments.getTimePassed().getSeconds());
}

}
