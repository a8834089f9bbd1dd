#pragma once
#include "qsf/job/JobProxy.h"

namespace script {

/// Keeps firefighters in the suits that they wear: while it is on, in each frame one action that changes a mask is
/// taken off the plan of each of them. Owned by MapScriptManager.
class SuitChangeGuard {
public:
  /// From the next frame on.
  void switchOn();
  void switchOff() { mJob.unregister(); }

private:
  static void removeChanges();

  qsf::JobProxy mJob;
};

}
