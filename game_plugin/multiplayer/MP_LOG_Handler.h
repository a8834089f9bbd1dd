#pragma once
#include "em5/multiplayer/OperationMessageHandlerManager.h"

#include <cstdint>
#include <string>

namespace script::multiplayer {

/// Carries the lines of the players' log between the machines of a session, operation message 140: the host hands on
/// what a client writes. Owned by the session.
class MP_LOG_Handler : public em5::multiplayer::OperationMessageHandler {
public:
  static constexpr std::uint32_t MESSAGE = 140;
  /// That of the running session; null without one.
  static MP_LOG_Handler* get();

  /// On a client; `player` is the line's author.
  void sendLogToHost(const std::string& text, std::uint8_t player) const;
  /// On the host: to every client but the author; to all if the host is the author.
  void sendLogFromHost(const std::string& text, std::uint8_t player) const;

  bool receiveMessage(std::uint32_t senderIndex, std::uint32_t messageId, qsf::game::BitStream& stream) override;
};

}
