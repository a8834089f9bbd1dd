#include "em5/component/EboxComponent.h"

#include "em5/action/MoveAction.h"
#include "em5/base/Jobs.h"
#include "em5/component/PersonComponent.h"
#include "em5/logic/TargetPointProviders.h"
#include "em5/map/EntityHelper.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/ai/ReachObjectGoal.h"
#include "qsf/base/Random.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

#include <memory>
#include <utility>

namespace em5 {

namespace {

/// Behind whatever the person is about.
void lead(qsf::Entity& onlooker, qsf::Entity& box) {
  auto goal = std::make_unique<qsf::ai::ReachObjectGoal>(onlooker, box,
                                                         GetEquipmentTargetPointProvider::TARGET_POINT_ID, false);
  onlooker.getOrCreateComponent<qsf::ActionComponent>()->pushAction<MoveAction>().init(std::move(goal));
}

}

static const qsf::DeclaredClass<EboxComponent> declared;

void EboxComponent::declareCamp() {
  camp::Class::declare<EboxComponent>("em5::EboxComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Defect", &EboxComponent::isDefect, &EboxComponent::setDefect)
      .property("GapeChance", &EboxComponent::mGapeChance)
      .property("GapeRadius", &EboxComponent::mGapeRadius)
      .property("LightningEntity", &EboxComponent::mLightningEntity)
      .tag(qsf::UNSIGNED_TAG)
      .property("SparksEntity", &EboxComponent::mSparksEntity)
      .tag(qsf::UNSIGNED_TAG);
}

bool EboxComponent::onStartup() {
  updateJob();
  return true;
}

void EboxComponent::onShutdown() { mGapeJob.unregister(); }

void EboxComponent::setDefect(bool defect) {
  if (!defect) return setEboxIntact();
  mDefect = true;
  updateJob();
}

void EboxComponent::setEboxDefectiveWithGaping(float gapeChance, float gapeRadius) {
  mDefect = true;
  mGapeChance = gapeChance;
  mGapeRadius = gapeRadius;
  updateJob();
}

void EboxComponent::updateJob() {
  if (isRunning() && mDefect)
    mGapeJob.registerAt(Jobs::SIMULATION_LOGIC, [this](const qsf::JobArguments&) { attractOnlookers(); });
  else
    mGapeJob.unregister();
}

void EboxComponent::attractOnlookers() {
  if (!isActive() || !(mGapeChance > 0)) return;
  qsf::Entity& entity = getEntity();
  const qsf::ComponentMapQuery query(entity.getMap());
  for (const auto* person :
       query.getInstancesInCircle<PersonComponent>(EntityHelper(entity).getPosition(), mGapeRadius)) {
    qsf::Entity& onlooker = person->getEntity();
    if (!EntityHelper(onlooker).isCivilPersonInValidState() || !mAskedIds.insert(onlooker.getId()).second) continue;
    if (qsf::Random::getRandomFloat(0, 1) < mGapeChance) lead(onlooker, entity);
  }
}

void EboxComponent::setEboxIntact() {
  mDefect = false;
  mGapeChance = 0;
  mGapeRadius = 0;
  mAskedIds.clear();
  updateJob();
  destroyParticles();
}

bool EboxComponent::isBurning() const { return EntityHelper(getEntity()).isBurning(); }

void EboxComponent::destroyParticles() {
  for (std::uint64_t* id : {&mLightningEntity, &mSparksEntity}) {
    const std::uint64_t particles = std::exchange(*id, qsf::UNINITIALIZED_ID);
    if (qsf::Entity* entity = findEntity()) entity->getMap().destroyObjectById(particles);
  }
}

}
