#include "qsf/component/MovableComponent.h"

#include "qsf/component/TransformComponent.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <cmath>

namespace qsf {

namespace {

bool isFinite(const glm::vec3& vector) {
  return std::isfinite(vector.x) && std::isfinite(vector.y) && std::isfinite(vector.z);
}

/// Angle between the two, in radians, the shorter way.
float angleBetween(const glm::quat& from, const glm::quat& to) {
  const glm::quat difference = glm::conjugate(from) * to;
  return 2.0f * std::atan2(glm::length(glm::vec3(difference.x, difference.y, difference.z)), std::abs(difference.w));
}

constexpr float SMALLEST_ANGLE = 1e-4f; // radians; smaller turns are done at once

}

static const DeclaredClass<MovableComponent> declared;

void MovableComponent::declareCamp() {
  camp::Class::declare<MovableComponent>("qsf::MovableComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Speed", &MovableComponent::getSpeed, &MovableComponent::setSpeed)
      .property("TurnSpeed", &MovableComponent::getTurnSpeed, &MovableComponent::setTurnSpeed)
      .property("AngularVelocity", &MovableComponent::getAngularVelocity,
                &MovableComponent::setAngularVelocityPerSecond)
      .property("TargetPosition", &MovableComponent::getTargetPosition, &MovableComponent::moveToPosition)
      .property("TargetRotation", &MovableComponent::getTargetRotation, &MovableComponent::moveToRotation)
      .property("Moving", &MovableComponent::isMoving, &MovableComponent::setMoving);
}

TransformComponent* MovableComponent::findTransform() const {
  return getPrototype().getComponent<TransformComponent>();
}

glm::vec3 MovableComponent::getPosition() const {
  const TransformComponent* transform = findTransform();
  return transform ? transform->getPosition() : glm::vec3(0, 0, 0);
}

glm::quat MovableComponent::getRotation() const {
  const TransformComponent* transform = findTransform();
  return transform ? transform->getRotation() : glm::quat(1, 0, 0, 0);
}

void MovableComponent::moveToPosition(const glm::vec3& position) {
  if (!isFinite(position) || !findTransform()) return;
  mTargetPosition = position;
  mMoving = getPosition() != position;
  updateRegistration();
}

void MovableComponent::moveToRotation(const glm::quat& rotation) {
  const float square = glm::dot(rotation, rotation);
  if (!std::isfinite(square) || square <= 0 || !findTransform()) return;
  mTargetRotation = std::abs(square - 1) < SMALLEST_ANGLE ? rotation : glm::normalize(rotation);
  mTurning = getRotation() != mTargetRotation;
  updateRegistration();
}

void MovableComponent::moveToPositionAndRotation(const glm::vec3& position, const glm::quat& rotation) {
  moveToPosition(position);
  moveToRotation(rotation);
}

void MovableComponent::stopMoving() { setMoving(false); }

void MovableComponent::setMoving(bool moving) {
  if (moving) // takes up a move that was stopped, if there was one
    return mMoving ? void() : moveToPosition(mTargetPosition);
  mMoving = false;
  updateRegistration();
}

void MovableComponent::setAngularVelocity(const glm::quat& rotation, Time span) {
  mAngularVelocity = rotation;
  mAngularVelocitySpan = span.getSeconds();
}

void MovableComponent::setAngularVelocityPerSecond(const glm::quat& rotation) {
  setAngularVelocity(rotation, Time::fromSeconds(1));
}

glm::vec3 MovableComponent::getTargetPosition() const { return mMoving ? mTargetPosition : getPosition(); }

glm::quat MovableComponent::getTargetRotation() const { return mTurning ? mTargetRotation : getRotation(); }

void MovableComponent::setSpeed(float speed) { mSpeed = speed > 0 ? speed : 0; }

void MovableComponent::setTurnSpeed(float degreesPerSecond) {
  mTurnSpeed = degreesPerSecond > 0 ? degreesPerSecond : 0;
}

bool MovableComponent::onStartup() {
  updateRegistration();
  return true;
}

void MovableComponent::onShutdown() { mJob.unregister(); }

void MovableComponent::updateRegistration() {
  const bool hasWork = isRunning() && (mMoving || mTurning);
  if (hasWork && !mJob.isRegistered())
    mJob.registerInSimulation([this](const JobArguments& arguments) { update(arguments); });
  else if (!hasWork)
    mJob.unregister();
}

void MovableComponent::update(const JobArguments& arguments) {
  TransformComponent* transform = findTransform();
  if (!isActive() || !transform) return;
  const float seconds = arguments.getTimePassed().getSeconds();
  const glm::vec3 position = mMoving ? advancePosition(transform->getPosition(), seconds) : transform->getPosition();
  const glm::quat rotation = mTurning ? advanceRotation(transform->getRotation(), seconds) : transform->getRotation();
  transform->setPositionAndRotation(position, rotation);
  updateRegistration();
}

glm::vec3 MovableComponent::advancePosition(const glm::vec3& position, float seconds) {
  const glm::vec3 way = mTargetPosition - position;
  const float distance = glm::length(way);
  const float step = mSpeed * mSpeedFactor * seconds;
  // The tolerance keeps a move of a whole number of steps from needing one more for what rounding left over. A place
  // that isn't finite has no way to anywhere and is left at once.
  constexpr float TOLERANCE = 1e-3f;
  if (distance > step + TOLERANCE) return position + way * (step / distance);
  if (step <= 0 && distance > 0) return position;
  mMoving = false;
  return mTargetPosition;
}

glm::quat MovableComponent::advanceRotation(const glm::quat& rotation, float seconds) {
  const float angle = angleBetween(rotation, mTargetRotation);
  const float step = turnRate() * seconds;
  if (angle > step + SMALLEST_ANGLE) return glm::normalize(glm::slerp(rotation, mTargetRotation, step / angle));
  if (step <= 0 && angle > SMALLEST_ANGLE) return rotation;
  mTurning = false;
  return mTargetRotation;
}

float MovableComponent::turnRate() const {
  const float angle = angleBetween(glm::quat(1, 0, 0, 0), mAngularVelocity);
  if (mAngularVelocitySpan > 0 && angle > SMALLEST_ANGLE) return angle / mAngularVelocitySpan;
  return glm::radians(mTurnSpeed);
}

}
