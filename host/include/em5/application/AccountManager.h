#pragma once
#include "qsf/Export.h"

namespace em5 {

/// The player's account at the game's server, whose cloud keeps saved games. Owned by the application. A host without a
/// network only remembers whether it would synchronise.
class QSF_API AccountManager {
public:
  /// Leaves a trace in the call recorder. Not paused at first; stays as it is from game to game.
  void setCloudSyncPaused(bool paused);
  bool isCloudSyncPaused() const { return mCloudSyncPaused; }

private:
  bool mCloudSyncPaused = false;
};

}
