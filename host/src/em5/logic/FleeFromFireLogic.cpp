#include "em5/logic/FleeFromFireLogic.h"

#include "em5/action/MoveAction.h"
#include "em5/component/FireComponent.h"
#include "em5/map/EntityHelper.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/ai/ReachSinglePointGoal.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>
#include <limits>

namespace em5 {

namespace {

constexpr float SAFE_DISTANCE = 30.0f;
/// Who is that near to the safe distance is safe.
constexpr float TOLERANCE = 0.5f;
/// So often it looks round.
constexpr qsf::Time INTERVAL = qsf::Time::fromMicroseconds(1'000'000);

/// Null if nothing burns within the safe distance.
const FireComponent* findNearestFire(const qsf::Map& map, const glm::vec3& position) {
  const FireComponent* nearest = nullptr;
  float nearestDistance = std::numeric_limits<float>::infinity();
  const qsf::ComponentMapQuery query(map);
  for (const auto* fire : query.getInstancesInCircle<FireComponent>(position, SAFE_DISTANCE - TOLERANCE)) {
    const glm::vec3 way = EntityHelper(fire->getEntity()).getPosition() - position;
    const float distance = std::hypot(way.x, way.z);
    if (!fire->isBurning() || distance >= nearestDistance) continue;
    nearest = fire;
    nearestDistance = distance;
  }
  return nearest;
}

glm::vec3 findSafePlace(const qsf::Map& map, const glm::vec3& position, const glm::vec3& fire) {
  const glm::vec2 way(position.x - fire.x, position.z - fire.z);
  const float distance = glm::length(way);
  const glm::vec2 direction = distance > 0 ? way / distance : glm::vec2(0, 1);
  const qsf::Map::Bounds& bounds = map.getBounds();
  return {std::clamp(fire.x + direction.x * SAFE_DISTANCE, bounds.minimumX, bounds.maximumX), position.y,
          std::clamp(fire.z + direction.y * SAFE_DISTANCE, bounds.minimumZ, bounds.maximumZ)};
}

const qsf::DeclaredClass<FleeFromFireLogic> declared;

}

void FleeFromFireLogic::declareCamp() {
  qsf::ClassRegistry::declareOnce<GameLogic>();
  camp::Class::declare<FleeFromFireLogic>("em5::FleeFromFireLogic").base<GameLogic>().constructor0();
}

void FleeFromFireLogic::onStartup() {
  mTimeToLook = qsf::Time();
  ActingLogic::onStartup();
}

void FleeFromFireLogic::update(qsf::Time timePassed) {
  mTimeToLook -= timePassed;
  if (mTimeToLook > qsf::Time()) return;
  mTimeToLook = INTERVAL;
  qsf::Entity* person = findEntity();
  if (!person) return;
  const EntityHelper helper(*person);
  const glm::vec3 position = helper.getPosition();
  const FireComponent* fire = findNearestFire(person->getMap(), position);
  if (!fire || !helper.isCivilPersonInValidState()) {
    rest(); // calm, or not able to run any more
    return;
  }
  const glm::vec3 place = findSafePlace(person->getMap(), position, EntityHelper(fire->getEntity()).getPosition());
  person->getOrCreateComponent<qsf::ActionComponent>()
      ->pushAction<MoveAction>(qsf::ActionComponent::DEFAULT_PRIORITY, qsf::action::REPLACE_WHOLE_PLAN)
      .init(std::make_unique<qsf::ai::ReachSinglePointGoal>(qsf::logic::TargetPoint(place)), MOVEMENT_MODE_RUN_PANIC);
}

}
