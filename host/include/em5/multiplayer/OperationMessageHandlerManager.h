#pragma once
#include "qsf/Export.h"

#include <cstdint>
#include <map>
#include <memory>
#include <utility>

namespace em5::multiplayer {

/// Base of what reacts to one kind of message between the machines of a session. Owned by the manager.
class QSF_API OperationMessageHandler {
public:
  virtual ~OperationMessageHandler() = default;
};

/// The handlers of a session, by message id and sub id. Owned by the session.
class QSF_API OperationMessageHandlerManager {
public:
  /// Takes the handler over; one registered before for the same ids is destroyed.
  void registerHandler(std::uint32_t messageId, std::uint32_t subId, std::unique_ptr<OperationMessageHandler> handler);
  /// Null if none is registered.
  OperationMessageHandler* getHandlerById(std::uint32_t messageId, std::uint32_t subId) const;

private:
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::unique_ptr<OperationMessageHandler>> mHandlers;
};

}
