#pragma once
#include "em5/multiplayer/OperationMessageHandlerManager.h"

#include <cstdint>
#include <vector>

namespace script {

class ScenarioHandler;
struct ScenarioTrigger;

namespace multiplayer {

/// The scripts' own road between the machines of a session, operation message 48: which trigger is hit, by whom, with
/// which callers and target, and which scripted command was used. A trigger travels by nothing but its hash, so all
/// machines must have the same scripts. Owned by the session.
class ScriptHandler : public em5::multiplayer::OperationMessageHandler {
public:
  static constexpr std::uint32_t MESSAGE = 48;
  /// That of the running session; null without one.
  static ScriptHandler* get();

  // Sending does nothing where it has no one to send to: outside of a session, on a machine of the other kind.

  /// Host: the clients switch the trigger on.
  void sendTriggerToAllClients(std::uint32_t triggerHash, const std::vector<std::uint64_t>& callers,
                               std::uint64_t target, std::uint8_t player) const;
  /// Client: the host runs the trigger's effects on its behalf.
  void sendTriggerToHost(std::uint32_t triggerHash, std::uint8_t player, const std::vector<std::uint64_t>& callers,
                         std::uint64_t target) const;
  /// Host: that player's machine tells its scripts that the command was used.
  void sendCommandToClient(std::uint32_t commandHash, std::uint32_t player) const;

  bool receiveMessage(std::uint32_t senderIndex, std::uint32_t messageId, qsf::game::BitStream& stream) override;
};

}

}
