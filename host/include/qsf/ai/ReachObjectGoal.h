#pragma once
#include "qsf/ai/ReachGoal.h"
#include "qsf/base/Ids.h"

namespace qsf::ai {

/// A place beside an entity, which a target point provider tells. There is nothing left to reach when the entity is
/// gone or linked below the mover.
class QSF_API ReachObjectGoal : public ReachGoal {
public:
  /// `targetPointId` is the hash of a provider's class name; an unknown one leads to the entity's nearest edge and logs
  /// a warning once. With `follow` the goal moves with the entity, and is reached as soon as an entity that moves is
  /// within reach; otherwise it stays where the entity was at the move's start.
  ReachObjectGoal(Entity& mover, Entity& target, StringHash targetPointId, bool follow);

  std::optional<logic::TargetPoint> getTargetPoint(Entity& mover) override;
  void restart() override { mTargetPoint.reset(); }
  action::Description describe() const override;

private:
  logic::TargetPoint computeTargetPoint(Entity& mover, Entity& target);

  std::uint64_t mTargetId = UNINITIALIZED_ID;
  StringHash mTargetPointId;
  std::optional<logic::TargetPoint> mTargetPoint;
  glm::vec3 mSeenPosition{0, 0, 0};
  glm::quat mSeenRotation{1, 0, 0, 0};
  bool mFollow;
  bool mHasWarned = false;
};

}
