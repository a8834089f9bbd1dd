#pragma once
#include "em5/application/AccountManager.h"
#include "em5/game/GameSessionConfiguration.h"
#include "qsf/base/UniqueInstance.h"

namespace em5 {

/// The running program as the game's own code sees it: which game comes next, and the wish to start it. Owned by the
/// host session, lives from the host's start to its end, also in the editor.
class QSF_API Application : public qsf::UniqueInstanceTarget<Application> {
public:
  GameSessionConfiguration& getGameSessionConfiguration() { return mConfiguration; }
  AccountManager& getAccountManager() { return mAccountManager; }

  /// Ends the running game and starts the configured one, at the end of this frame. Several wishes in a frame are one.
  void triggerStartGame() { mStartGameTriggered = true; }
  /// Ends the running game at the end of this frame.
  void triggerEndGame() { mEndGameTriggered = true; }

  /// For the host session: what was wished since the last call.
  struct Wishes {
    bool startGame;
    bool endGame;
  };
  Wishes takeWishes();

private:
  GameSessionConfiguration mConfiguration;
  AccountManager mAccountManager;
  bool mStartGameTriggered = false;
  bool mEndGameTriggered = false;
};

}
