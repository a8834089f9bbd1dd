#pragma once
#include "qsf/Export.h"

namespace qsf::game {

/// The link to the shop through which the game was bought. Headless, nobody is at its other end: it counts what it is
/// told. Owned by the achievement system.
class QSF_API SteamApiRuntimeLinking {
public:
  /// Reports of all achievements since the host's start.
  unsigned int getNumberOfReports() const { return mNumberOfReports; }

private:
  friend class AchievementSystem;
  unsigned int mNumberOfReports = 0;
};

/// What the player has achieved. Owned by em5::Plugin. Both operations leave a trace in the call recorder.
class QSF_API AchievementSystem {
public:
  /// While it is locked, nothing can be achieved. Open at first; stays as it is from game to game.
  void setWriteLock(bool locked);
  bool isWriteLocked() const { return mWriteLocked; }

  /// Null in a program that was bought elsewhere; the host always has one.
  SteamApiRuntimeLinking* getSteamApiRuntimeLinking() { return &mSteam; }
  void tellSteamAboutAllAchievements();

private:
  SteamApiRuntimeLinking mSteam;
  bool mWriteLocked = false;
};

}
