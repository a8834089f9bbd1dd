#include "em5/action/TurnToAction.h"

#include "qsf/component/MovableComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/EntityHelper.h"
#include "qsf/map/Map.h"
#include "qsf/math/Heading.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

#include <glm/gtc/constants.hpp>

#include <cmath>

namespace em5 {

namespace {

constexpr float SMALLEST_DISTANCE = 1e-3f;
constexpr float SMALLEST_ANGLE = 1e-4f; // radians; what is left of a turn beyond a whole number of steps

}

static const qsf::DeclaredClass<TurnToAction> declared;

void TurnToAction::declareCamp() {
  camp::Class::declare<TurnToAction>("em5::TurnToAction").base<Action>().constructor0();
  qsf::ClassRegistry::addOtherName(camp::classByType<TurnToAction>(), "qsf::TurnToAction");
}

void TurnToAction::init(std::uint64_t targetId, bool reverse, float degreesPerSecond) {
  mTargetId = targetId;
  mReverse = reverse;
  mTurnSpeed = degreesPerSecond > 0 ? degreesPerSecond : DEFAULT_TURN_SPEED;
}

void TurnToAction::init(const qsf::Entity& target, bool reverse, float degreesPerSecond) {
  init(target.getId(), reverse, degreesPerSecond);
}

qsf::action::Description TurnToAction::describe() const {
  return {{"target", std::to_string(mTargetId)},
          {"reverse", mReverse ? "1" : "0"},
          {"speed", qsf::toText(static_cast<double>(mTurnSpeed))}};
}

bool TurnToAction::onStartup() {
  if (!getEntity().getComponent<qsf::TransformComponent>()) return false;
  // A turn that the unit is at already would work against this one.
  if (auto* movable = getEntity().getComponent<qsf::MovableComponent>())
    movable->moveToRotation(movable->getRotation());
  return true;
}

qsf::action::Result TurnToAction::updateAction(const qsf::Clock& clock) {
  qsf::Entity* target = getMap().getEntityById(mTargetId);
  auto* transform = getEntity().getComponent<qsf::TransformComponent>();
  if (!target || !transform || qsf::EntityHelper(*target).movesAlongWith(getEntity())) return qsf::action::RESULT_DONE;
  const glm::quat rotation = transform->getRotation();
  const glm::vec3 way = qsf::EntityHelper(*target).getPosition() - transform->getPosition();
  if (!(std::hypot(way.x, way.z) > SMALLEST_DISTANCE)) return qsf::action::RESULT_DONE; // there is no direction
  float angle = qsf::getAngleToFace({0, 0, 0}, rotation, way);
  if (mReverse) angle = std::remainder(angle + glm::pi<float>(), glm::two_pi<float>());
  const float step = glm::radians(mTurnSpeed) * clock.getTimePassed().getSeconds();
  const bool isLast = !(std::abs(angle) > step + SMALLEST_ANGLE);
  transform->setRotation(qsf::turnAboutY(rotation, isLast ? angle : std::copysign(step, angle)));
  return isLast ? qsf::action::RESULT_DONE : qsf::action::RESULT_CONTINUE;
}

}
