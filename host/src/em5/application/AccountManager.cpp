#include "em5/application/AccountManager.h"

#include "qsf/base/RecordedOperation.h"

namespace em5 {

static const qsf::RecordedOperation setCloudSyncPausedCall{"em5::AccountManager::setCloudSyncPaused", "`0` or `1`"};

void AccountManager::setCloudSyncPaused(bool paused) {
  mCloudSyncPaused = paused;
  setCloudSyncPausedCall.record({paused ? "1" : "0"});
}

}
