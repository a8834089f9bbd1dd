#pragma once
#include "em5/multiplayer/OperationMessageHandlerManager.h"

namespace em5 {

namespace multiplayer {

/// A session between machines.
class QSF_API SessionBase {
public:
  virtual ~SessionBase() = default;
  OperationMessageHandlerManager& getOperationMessageHandlerManager() { return mHandlerManager; }

private:
  OperationMessageHandlerManager mHandlerManager;
};

}

/// Knows whether the machine takes part in a session. Owned by the plug-in.
class QSF_API NetworkManager {
public:
  bool isMultiplayActive() const { return mSession != nullptr; }
  /// Null in single player.
  multiplayer::SessionBase* getSession() const { return mSession.get(); }
  void setSession(std::unique_ptr<multiplayer::SessionBase> session) { mSession = std::move(session); }

private:
  std::unique_ptr<multiplayer::SessionBase> mSession;
};

}
