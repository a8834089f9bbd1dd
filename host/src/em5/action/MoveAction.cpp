#include "em5/action/MoveAction.h"

#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/VehicleComponent.h"
#include "qsf/ai/NavigationComponent.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/EntityHelper.h"
#include "qsf/math/Heading.h"
#include "qsf/reflection/ClassRegistry.h"

#include <glm/gtc/constants.hpp>

#include <cmath>

namespace em5 {

namespace {

/// A destination that differs by less is the one that the unit goes to already.
constexpr float SAME_PLACE = 0.01f;

bool isFinite(const glm::vec3& place) {
  return std::isfinite(place.x) && std::isfinite(place.y) && std::isfinite(place.z);
}

}

static const qsf::DeclaredClass<MoveAction> declared;

void MoveAction::declareCamp() { camp::Class::declare<MoveAction>("em5::MoveAction").base<Action>().constructor0(); }

void MoveAction::init(std::unique_ptr<qsf::ai::ReachGoal> goal, unsigned int movementMode, std::nullptr_t,
                      qsf::Time delay) {
  mGoal = std::move(goal);
  mMovementMode = movementMode;
  mDelay = delay;
}

qsf::action::Description MoveAction::describe() const {
  qsf::action::Description description = mGoal ? mGoal->describe() : qsf::action::Description();
  const std::string name = getMovementModeName(mMovementMode);
  if (!name.empty()) description.emplace_back("mode", name);
  description.emplace_back("mode", std::to_string(mMovementMode));
  return description;
}

bool MoveAction::canMove() const {
  const qsf::Entity& entity = getEntity();
  if (!entity.getComponent<qsf::MovableComponent>() || !entity.getComponent<qsf::TransformComponent>()) return false;
  const auto* vehicle = entity.getComponent<VehicleComponent>();
  const auto* health = entity.getComponent<HealthComponent>();
  const auto* person = entity.getComponent<PersonComponent>();
  const auto* navigation = entity.getComponent<qsf::ai::NavigationComponent>();
  return !(navigation && !navigation->isActive()) && !(vehicle && vehicle->isDestroyed()) &&
         !(health && (health->isInjured() || health->isDead())) &&
         !(person && person->getContainerId() != qsf::UNINITIALIZED_ID);
}

bool MoveAction::onStartup() {
  if (!mGoal || !canMove()) return false;
  mGoal->restart();
  mDelayLeft = mDelay;
  return true;
}

qsf::action::Result MoveAction::updateAction(const qsf::Clock& clock) {
  if (!canMove()) return qsf::action::RESULT_DONE;
  if (mDelayLeft > qsf::Time()) {
    mDelayLeft -= clock.getTimePassed();
    return qsf::action::RESULT_CONTINUE;
  }
  const std::optional<qsf::logic::TargetPoint> targetPoint = mGoal->getTargetPoint(getEntity());
  if (!targetPoint) return qsf::action::RESULT_DONE;
  const glm::vec3 position = qsf::EntityHelper(getEntity()).getPosition();
  const glm::vec3 destination = targetPoint->getDestination(position);
  if (!isFinite(position) || !isFinite(destination)) return qsf::action::RESULT_DONE;
  if (targetPoint->isReachedAt(position)) {
    arrive(*targetPoint);
    return qsf::action::RESULT_DONE;
  }
  steer(destination);
  return qsf::action::RESULT_CONTINUE;
}

void MoveAction::steer(const glm::vec3& destination) {
  auto& movable = *getEntity().getComponent<qsf::MovableComponent>();
  movable.setSpeedFactor(em5::getSpeedFactor(mMovementMode));
  if (movable.isMoving() && glm::distance(movable.getTargetPosition(), destination) < SAME_PLACE) return;
  const glm::quat rotation = movable.getRotation();
  const float toTheFront = qsf::getAngleToFace(movable.getPosition(), rotation, destination);
  const bool isBackwards = mMovementMode == MOVEMENT_MODE_WALK_BACKWARDS;
  const float angle = isBackwards ? toTheFront + glm::pi<float>() : toTheFront;
  movable.moveToPositionAndRotation(destination, qsf::turnAboutY(rotation, angle));
}

void MoveAction::arrive(const qsf::logic::TargetPoint& targetPoint) {
  if (!targetPoint.getRotation()) return;
  getEntity().getComponent<qsf::TransformComponent>()->setRotation(*targetPoint.getRotation());
  getEntity().getComponent<qsf::MovableComponent>()->moveToRotation(*targetPoint.getRotation()); // ends its own turn
}

void MoveAction::onShutdown() {
  auto* movable = getEntity().getComponent<qsf::MovableComponent>();
  if (!movable) return;
  movable->stopMoving();
  movable->setSpeedFactor(1.0f);
}

}
