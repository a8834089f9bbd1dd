#pragma once
#include "em5/action/MovementMode.h"
#include "qsf/action/Action.h"
#include "qsf/ai/ReachGoal.h"
#include "qsf/base/Ids.h"
#include "qsf/base/Time.h"

#include <cstddef>
#include <memory>

namespace em5 {

/// Walks or drives straight to a goal, at the unit's speed times the factor of the movement mode, and turns into its
/// way. A unit that arrives takes up the target point's rotation, if that has one. Ends when the goal is reached or
/// gone and when the unit cannot move: without qsf::MovableComponent, destroyed, injured, dead or inside a container.
/// Begins anew whenever something else has stopped the unit or sent it elsewhere.
class QSF_API MoveAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::MoveAction"};
  static void declareCamp();

  /// The host knows no special navigation. `delay` passes before the unit sets out.
  void init(std::unique_ptr<qsf::ai::ReachGoal> goal, unsigned int movementMode = qsf::getUninitialized<unsigned int>(),
            std::nullptr_t specialNavigation = nullptr, qsf::Time delay = qsf::Time());
  unsigned int getMovementMode() const { return mMovementMode; }
  qsf::action::Description describe() const override;

protected:
  bool onStartup() override;
  qsf::action::Result updateAction(const qsf::Clock& clock) override;
  void onShutdown() override;

private:
  bool canMove() const;
  void steer(const glm::vec3& destination);
  void arrive(const qsf::logic::TargetPoint& targetPoint);

  std::unique_ptr<qsf::ai::ReachGoal> mGoal;
  qsf::Time mDelay, mDelayLeft;
  unsigned int mMovementMode = MOVEMENT_MODE_DEFAULT;
};

}
CAMP_TYPE_NONCOPYABLE(em5::MoveAction)
