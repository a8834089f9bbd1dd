#include "em5/logic/GangsterLogic.h"

#include "em5/action/GangsterActions.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/map/EntityHelper.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"

#include <limits>
#include <utility>

namespace em5 {

namespace {

/// A gangster waits that long before its first deed and between two.
constexpr qsf::Time PAUSE = qsf::Time::fromMicroseconds(5'000'000);
/// How long a deed takes when it is with its victim.
constexpr qsf::Time DEED = qsf::Time::fromMicroseconds(2'000'000);
/// Its victims are at most so far away, in the ground plane.
constexpr float RANGE = 100.0f;
constexpr unsigned int PRIORITY = 100;

const qsf::RecordedOperation escapeCall{"em5::GangsterBaseLogic::escape", "reason, by its number"};

bool canAct(qsf::Entity& gangster) {
  const auto* person = gangster.getComponent<PersonComponent>();
  const auto* health = gangster.getComponent<HealthComponent>();
  return person && person->getContainerId() == qsf::UNINITIALIZED_ID && !EntityHelper(gangster).getParentEntity() &&
         !(health && (health->isInjured() || health->isDead()));
}

const qsf::DeclaredClass<GangsterBaseLogic> declaredBase;

}

void GangsterBaseLogic::declareCamp() {
  qsf::ClassRegistry::declareOnce<GameLogic>();
  camp::Class::declare<GangsterBaseLogic>("em5::GangsterBaseLogic").base<GameLogic>().constructor0();
}

void GangsterBaseLogic::onStartup() {
  mTimeToDeed = PAUSE;
  ActingLogic::onStartup();
}

void GangsterBaseLogic::escape(int reason) {
  escapeCall.record({std::to_string(reason)});
  qsf::Entity* gangster = findEntity();
  if (!gangster || std::exchange(mFleeing, true)) return;
  flee(*gangster);
}

void GangsterBaseLogic::update(qsf::Time timePassed) {
  qsf::Entity* gangster = findEntity();
  if (!gangster || !canAct(*gangster)) return;
  const auto* actions = gangster->getComponent<qsf::ActionComponent>();
  if (actions && !actions->getPlan().isEmpty()) return;
  // Whatever has taken the escape off its plan, it runs on.
  if (mFleeing) return flee(*gangster);
  mTimeToDeed -= timePassed;
  if (mTimeToDeed > qsf::Time()) return;
  mTimeToDeed = PAUSE;
  planDeed(*gangster);
}

void GangsterBaseLogic::flee(qsf::Entity& gangster) {
  gangster.getOrCreateComponent<qsf::ActionComponent>()->pushAction<EscapeAction>(PRIORITY);
}

void GangsterBaseLogic::planDeed(qsf::Entity& gangster) {
  if (!getVictimComponentId().isInitialized()) return;
  const glm::vec3 here = EntityHelper(gangster).getPosition();
  const qsf::ComponentMapQuery query(gangster.getMap());
  qsf::Entity* nearest = nullptr;
  float nearestDistance = std::numeric_limits<float>::infinity();
  for (const qsf::Component* component : query.getInstancesInCircleById(getVictimComponentId(), here, RANGE)) {
    qsf::Entity& entity = component->getEntity();
    const float distance = glm::distance(here, EntityHelper(entity).getPosition());
    if (&entity == &gangster || distance >= nearestDistance || !isVictim(entity)) continue;
    nearest = &entity;
    nearestDistance = distance;
  }
  if (nearest)
    gangster.getOrCreateComponent<qsf::ActionComponent>()->pushAction<DeedAction>(PRIORITY).init(*nearest, DEED);
}

}
