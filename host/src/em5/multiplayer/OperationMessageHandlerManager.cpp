#include "em5/multiplayer/OperationMessageHandlerManager.h"

namespace em5::multiplayer {

void OperationMessageHandlerManager::registerHandler(std::uint32_t messageId, std::uint32_t subId,
                                                     std::unique_ptr<OperationMessageHandler> handler) {
  mHandlers[{messageId, subId}] = std::move(handler);
}

OperationMessageHandler* OperationMessageHandlerManager::getHandlerById(std::uint32_t messageId,
                                                                        std::uint32_t subId) const {
  const auto found = mHandlers.find({messageId, subId});
  return found == mHandlers.end() ? nullptr : found->second.get();
}

}
