#pragma once
#include "qsf/action/Action.h"
#include "qsf/logic/TargetPoint.h"

#include <optional>

namespace qsf::ai {

/// What a move wants to reach. Owned by the move.
class QSF_API ReachGoal {
public:
  ReachGoal() = default;
  virtual ~ReachGoal() = default;
  ReachGoal(const ReachGoal&) = delete;
  ReachGoal& operator=(const ReachGoal&) = delete;

  /// Where to go right now; none if there is nothing left to reach. Asked in every frame of the move.
  virtual std::optional<logic::TargetPoint> getTargetPoint(Entity& mover) = 0;
  /// The move begins anew, from wherever the mover stands.
  virtual void restart() {}
  virtual action::Description describe() const = 0;
};

}
