#pragma once
#include "em5/logic/ActingLogic.h"
#include "qsf/base/StringHash.h"

namespace em5 {

/// Marks a person that stands at a window, or as high, and jumps as soon as there is something to fall on: a jump
/// cushion on the ground (equipment of the name "jump_cushion" that nobody carries), near enough for a while. It stands
/// on the ground there then, out of the building, and the message EM5_ACTION_JUMPEDOUTOFWINDOW_PERSON tells of it. See
/// docs/host-game.md.
class QSF_API PersonJumpOutOfWindowLogic : public ActingLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::PersonJumpOutOfWindowLogic"};
  static void declareCamp();

protected:
  void onStartup() override;
  void update(qsf::Time timePassed) override;

private:
  qsf::Time mCourage; ///< how long a cushion has been there
};

}
CAMP_TYPE_NONCOPYABLE(em5::PersonJumpOutOfWindowLogic)
