#include "qsf/game/AchievementSystem.h"

#include "qsf/base/RecordedOperation.h"

namespace qsf::game {

static const RecordedOperation setWriteLockCall{"qsf::game::AchievementSystem::setWriteLock", "`0` or `1`"};
static const RecordedOperation tellSteamCall{"qsf::game::AchievementSystem::tellSteamAboutAllAchievements", ""};

void AchievementSystem::setWriteLock(bool locked) {
  mWriteLocked = locked;
  setWriteLockCall.record({locked ? "1" : "0"});
}

void AchievementSystem::tellSteamAboutAllAchievements() {
  ++mSteam.mNumberOfReports;
  tellSteamCall.record();
}

}
