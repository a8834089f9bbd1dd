#pragma once

#include "em5/multiplayer/NetworkManager.h"

namespace script::multiplayer {

/// The host's network manager while this machine takes part in a session, else null.
em5::NetworkManager* activeNetwork();

/// The running session's handler of that class; null without a session.
template <class Handler> Handler* handlerOfSession() {
  const em5::NetworkManager* network = activeNetwork();
  if (!network) return nullptr;
  return dynamic_cast<Handler*>(
      network->getSession()->getOperationMessageHandlerManager().getHandlerById(Handler::MESSAGE, 0));
}

}
