#pragma once
#include "qsf/base/UniqueInstance.h"

namespace em5 {

/// Switches for trying things out. Owned by the host session.
class QSF_API GameDebugGroup : public qsf::UniqueInstanceTarget<GameDebugGroup> {
public:
  /// Off: event pools start no events. Events started by name and those that run already are not touched. On at first.
  void setActiveFreeplay(bool active) { mActiveFreeplay = active; }
  bool getActiveFreeplay() const { return mActiveFreeplay; }

private:
  bool mActiveFreeplay = true;
};

}
