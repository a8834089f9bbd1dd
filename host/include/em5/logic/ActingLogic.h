#pragma once
#include "qsf/base/Time.h"
#include "qsf/job/JobProxy.h"
#include "qsf/logic/GameLogic.h"

namespace em5 {

/// Base of logics that act over time: from the startup to the shutdown, or until it rests, `update` is called in each
/// frame of the simulation. Of a logic that has timers the derived startup sets them and calls this one.
class QSF_API ActingLogic : public qsf::GameLogic {
protected:
  void onStartup() override;
  void onShutdown() override { rest(); }
  virtual void update(qsf::Time timePassed) = 0;
  /// No further update until the next startup.
  void rest() { mJob.unregister(); }

private:
  qsf::JobProxy mJob;
};

}
