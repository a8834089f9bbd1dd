#pragma once
#include "em5/logic/ActingLogic.h"
#include "qsf/base/StringHash.h"

namespace em5 {

/// Lets a civilian run from fire until it is far enough from all of them; then it is calm and does nothing any more.
/// See docs/host-game.md.
class QSF_API FleeFromFireLogic : public ActingLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::FleeFromFireLogic"};
  static void declareCamp();

protected:
  void onStartup() override;
  void update(qsf::Time timePassed) override;

private:
  qsf::Time mTimeToLook;
};

}
CAMP_TYPE_NONCOPYABLE(em5::FleeFromFireLogic)
