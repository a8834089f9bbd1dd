#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/base/Time.h"
#include "qsf/job/JobProxy.h"
#include "qsf/logic/GameLogic.h"

namespace em5 {

/// Lets a civilian run from fire until it is far enough from all of them; then it is calm and does nothing any more.
/// See docs/host-game.md.
class QSF_API FleeFromFireLogic : public qsf::GameLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::FleeFromFireLogic"};
  static void declareCamp();

protected:
  void onStartup() override;
  void onShutdown() override { mJob.unregister(); }

private:
  void update(qsf::Time timePassed);

  qsf::JobProxy mJob;
  qsf::Time mTimeToLook;
};

}
CAMP_TYPE_NONCOPYABLE(em5::FleeFromFireLogic)
