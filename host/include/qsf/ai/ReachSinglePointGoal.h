#pragma once
#include "qsf/ai/ReachGoal.h"

namespace qsf::ai {

/// A fixed place.
class QSF_API ReachSinglePointGoal : public ReachGoal {
public:
  explicit ReachSinglePointGoal(const logic::TargetPoint& targetPoint) : mTargetPoint(targetPoint) {}

  std::optional<logic::TargetPoint> getTargetPoint(Entity& mover) override;
  action::Description describe() const override;

private:
  logic::TargetPoint mTargetPoint;
};

}
