#pragma once
#include "qsf/Export.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace qsf::game {
class BitStream;
}

namespace em5::multiplayer {

/// Base of what reacts to one kind of message between the machines of a session. Owned by the manager.
class QSF_API OperationMessageHandler {
public:
  virtual ~OperationMessageHandler() = default;
  /// A player has come into the session; `data` is what the game tells of it, null for nothing.
  virtual void onPlayerJoined(std::uint32_t /*playerIndex*/, void* /*data*/) {}
  /// A message from that player's machine. True when it was read whole; what else is left in the stream is ignored.
  virtual bool receiveMessage(std::uint32_t /*senderIndex*/, std::uint32_t /*messageId*/,
                              qsf::game::BitStream& /*stream*/) {
    return false;
  }
  virtual void onPlayerLeft(std::uint32_t /*playerIndex*/) {}
};

/// The handlers of a session, by message id and sub id. Owned by the session.
class QSF_API OperationMessageHandlerManager {
public:
  OperationMessageHandlerManager() = default;
  ~OperationMessageHandlerManager() = default;
  OperationMessageHandlerManager(const OperationMessageHandlerManager&) = delete;
  OperationMessageHandlerManager& operator=(const OperationMessageHandlerManager&) = delete;

  /// Takes the handler over; one registered before for the same ids is destroyed.
  void registerHandler(std::uint32_t messageId, std::uint32_t subId, std::unique_ptr<OperationMessageHandler> handler);
  /// Null if none is registered.
  OperationMessageHandler* getHandlerById(std::uint32_t messageId, std::uint32_t subId) const;
  /// Hands a message that has arrived to the handler of its id (sub id 0). False if there is none or it refused; what
  /// the handler throws is logged and counts as a refusal.
  bool dispatch(std::uint32_t senderIndex, std::uint32_t messageId, qsf::game::BitStream stream);
  void tellPlayerJoined(std::uint32_t playerIndex);
  void tellPlayerLeft(std::uint32_t playerIndex);

private:
  void callEach(const std::function<void(OperationMessageHandler&)>& call);

  std::map<std::pair<std::uint32_t, std::uint32_t>, std::shared_ptr<OperationMessageHandler>> mHandlers;
};

}
