#pragma once
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

namespace qsf {

class TransformComponent;

/// Moves and turns an entity over simulated time. Moves go straight to the target at "Speed" units a second, turns take
/// the shorter way; both end exactly at their target. Setting "TargetPosition" or "TargetRotation" starts a move or a
/// turn, setting "Moving" to false stops the move where it is. While the component is inactive, everything rests.
class QSF_API MovableComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::MovableComponent"};
  static constexpr float DEFAULT_SPEED = 10.0f;       // units a second
  static constexpr float DEFAULT_TURN_SPEED = 180.0f; // degrees a second
  explicit MovableComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Of the entity.
  glm::vec3 getPosition() const;
  glm::quat getRotation() const;

  /// A place that isn't finite is ignored.
  void moveToPosition(const glm::vec3& position);
  void moveToRotation(const glm::quat& rotation);
  void moveToPositionAndRotation(const glm::vec3& position, const glm::quat& rotation);
  void stopMoving();
  /// How far turns go in a span of time. Sets the pace of turns from now on; nothing turns without a target rotation. A
  /// span of zero or less, or the identity, goes back to "TurnSpeed".
  void setAngularVelocity(const glm::quat& rotation, Time span);

  /// True while it is on its way to a position; a turn on the spot is no move.
  bool isMoving() const { return mMoving; }
  bool isTurning() const { return mTurning; }
  /// The present position while there is no move.
  glm::vec3 getTargetPosition() const;
  glm::quat getTargetRotation() const;

  /// Units a second; below 0 counts as 0.
  float getSpeed() const { return mSpeed; }
  void setSpeed(float speed);
  /// Multiplies the speed of moves from now on, for whoever steers them; 1 at first. Below 0 counts as 0.
  float getSpeedFactor() const { return mSpeedFactor; }
  void setSpeedFactor(float factor) { mSpeedFactor = factor > 0 ? factor : 0; }
  /// Degrees a second; below 0 counts as 0.
  float getTurnSpeed() const { return mTurnSpeed; }
  void setTurnSpeed(float degreesPerSecond);

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  TransformComponent* findTransform() const;
  void setMoving(bool moving);
  const glm::quat& getAngularVelocity() const { return mAngularVelocity; }
  void setAngularVelocityPerSecond(const glm::quat& rotation);
  void updateRegistration();
  void update(const JobArguments& arguments);
  glm::vec3 advancePosition(const glm::vec3& position, float seconds);
  glm::quat advanceRotation(const glm::quat& rotation, float seconds);
  float turnRate() const;

  JobProxy mJob;
  glm::vec3 mTargetPosition{0, 0, 0};
  glm::quat mTargetRotation{1, 0, 0, 0};
  glm::quat mAngularVelocity{1, 0, 0, 0};
  float mAngularVelocitySpan = 1.0f;
  float mSpeed = DEFAULT_SPEED;
  float mSpeedFactor = 1.0f;
  float mTurnSpeed = DEFAULT_TURN_SPEED;
  bool mMoving = false;
  bool mTurning = false;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::MovableComponent)
