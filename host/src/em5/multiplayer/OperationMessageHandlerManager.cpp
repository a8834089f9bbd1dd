#include "em5/multiplayer/OperationMessageHandlerManager.h"

#include "qsf/game/BitStream.h"
#include "qsf/log/FaultCounter.h"

#include <string>

namespace em5::multiplayer {

namespace {

std::string nameHandler(std::uint32_t messageId) {
  return "the handler of operation message " + std::to_string(messageId);
}

}

void OperationMessageHandlerManager::registerHandler(std::uint32_t messageId, std::uint32_t subId,
                                                     std::unique_ptr<OperationMessageHandler> handler) {
  mHandlers[{messageId, subId}] = std::move(handler);
}

OperationMessageHandler* OperationMessageHandlerManager::getHandlerById(std::uint32_t messageId,
                                                                        std::uint32_t subId) const {
  const auto found = mHandlers.find({messageId, subId});
  return found == mHandlers.end() ? nullptr : found->second.get();
}

bool OperationMessageHandlerManager::dispatch(std::uint32_t senderIndex, std::uint32_t messageId,
                                              qsf::game::BitStream stream) {
  const auto found = mHandlers.find({messageId, 0});
  if (found == mHandlers.end()) return false;
  const std::shared_ptr<OperationMessageHandler> handler = found->second; // it may replace itself
  bool read = false;
  qsf::callGuarded([&] { read = handler->receiveMessage(senderIndex, messageId, stream); },
                   [&] { return nameHandler(messageId); });
  return read;
}

void OperationMessageHandlerManager::callEach(const std::function<void(OperationMessageHandler&)>& call) {
  const auto handlers = mHandlers; // one may register another
  for (const auto& entry : handlers)
    qsf::callGuarded([&] { call(*entry.second); }, [&] { return nameHandler(entry.first.first); });
}

void OperationMessageHandlerManager::tellPlayerJoined(std::uint32_t playerIndex) {
  callEach([&](OperationMessageHandler& handler) { handler.onPlayerJoined(playerIndex, nullptr); });
}

void OperationMessageHandlerManager::tellPlayerLeft(std::uint32_t playerIndex) {
  callEach([&](OperationMessageHandler& handler) { handler.onPlayerLeft(playerIndex); });
}

}
