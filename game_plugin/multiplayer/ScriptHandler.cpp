#include "game_plugin/multiplayer/ScriptHandler.h"

#include "game_plugin/multiplayer/Instructions.h"
#include "game_plugin/multiplayer/Network.h"
#include "game_plugin/multiplayer/TriggerInstruction.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/hints/ExecutionPoint.h"
#include "game_plugin/scenario/hints/Hints.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/lifecycle/RunningTriggers.h"
#include "game_plugin/scenario/messages/MessageNames.h"
#include "game_plugin/scenario/world/LocalPlayer.h"

#include "em5/multiplayer/NetworkManager.h"
#include "qsf/Qsf.h"
#include "qsf/message/MessageSystem.h"

#include <optional>

namespace script::multiplayer {

namespace {

/// Every trigger of that hash in every script, since one script may run several times.
void storeCall(const TriggerInstruction& instruction) {
  for (const MapScriptEntry* entry : MapScriptManager::get()->getScriptEntries()) {
    if (!entry->document) continue;
    for (ScenarioTrigger& trigger : entry->document->triggers) {
      if (trigger.globalNameHash() != instruction.hash) continue;
      TriggerCall& call = trigger.makeCall();
      call.callers = instruction.callers;
      call.target = instruction.target;
      call.player = instruction.player;
    }
  }
}

void hintAt(const RunningTrigger& found, const std::string& text) {
  const ExecutionScope scope(found.handler->getDocument()->program.get(), found.trigger->program->line);
  hints::tell(HintKind::NETWORK, text);
}

void noteSent(const TriggerInstruction& instruction) {
  Instructions::noteSent(instruction.hash);
  constexpr std::size_t MOST_CALLERS = 255;
  if (instruction.callers.size() <= MOST_CALLERS || !hints::isOn()) return;
  if (const auto found = findRunningTrigger(instruction.hash))
    hintAt(*found, "a list of " + std::to_string(instruction.callers.size()) +
                       " callers can't be sent: an instruction holds 255, and this one arrives wrong");
}

void logCallers(const TriggerInstruction& instruction) {
  for (const std::uint64_t caller : instruction.callers)
    logInfo("Caller " + std::to_string(caller));
}

std::optional<RunningTrigger> findAndStore(const TriggerInstruction& instruction) {
  const auto found = findRunningTrigger(instruction.hash);
  const std::string hash = std::to_string(instruction.hash);
  if (!found) {
    logInfo("MultiplayerSync cant find the trigger with the hash : " + hash);
    Instructions::noteLost(instruction.hash);
    return std::nullopt;
  }
  logInfo("MultiplayerSync found the trigger with the hash: " + hash);
  storeCall(instruction);
  return found;
}

/// The effects run at once, on the client's behalf, and nobody asks for conditions.
void applyOnHost(const TriggerInstruction& instruction) {
  logInfo("Message Triggerhash " + std::to_string(instruction.hash) + " Player " + std::to_string(instruction.player) +
          "Target: " + std::to_string(instruction.target) + " was send from Client");
  logCallers(instruction);
  if (const auto found = findAndStore(instruction)) found->handler->runEffectsOf(*found->trigger);
}

/// The trigger is switched on; its effects run when its conditions hold here.
void applyOnClient(const TriggerInstruction& instruction) {
  logInfo("Message Triggerhash " + std::to_string(instruction.hash) + " Target: " + std::to_string(instruction.target) +
          " Player: " + std::to_string(instruction.player) + " was send from Host");
  logCallers(instruction);
  if (const auto found = findAndStore(instruction)) found->handler->SetTriggerActive(instruction.hash, true);
}

bool receiveCommand(qsf::game::BitStream& stream) {
  std::uint32_t commandHash = 0;
  if (!stream.read(commandHash, 32)) return false;
  qsf::Qsf::instance()->getMessageSystem().emitMessage(
      qsf::MessageConfiguration(qsf::StringHash(messages::COMMAND_USED), commandHash));
  return true;
}

void hintAtForeignPlayer(const TriggerInstruction& instruction, std::uint32_t senderIndex) {
  if (!hints::isOn() || instruction.player == senderIndex) return;
  if (const auto found = findRunningTrigger(instruction.hash))
    hintAt(*found, "an instruction came from the machine of player " + std::to_string(senderIndex) +
                       " and says that it is player " + std::to_string(instruction.player) + "'s; that is what counts");
}

}

ScriptHandler* ScriptHandler::get() { return handlerOfSession<ScriptHandler>(); }

void ScriptHandler::sendTriggerToAllClients(std::uint32_t triggerHash, const std::vector<std::uint64_t>& callers,
                                            std::uint64_t target, std::uint8_t player) const {
  const em5::NetworkManager* network = activeNetwork();
  if (!network || getLocalPlayerIndex() != 0 || !network->getMultiplayerHost()) return;
  const TriggerInstruction instruction{triggerHash, player, callers, target};
  qsf::game::BitStream stream;
  instruction.write(stream);
  logInfo("Host sends message with the size " + std::to_string(stream.getNumberOfBits()));
  logInfo(std::to_string(triggerHash));
  noteSent(instruction);
  network->getMultiplayerHost()->sendOperationMessageToAllClients(MESSAGE, stream);
}

void ScriptHandler::sendTriggerToHost(std::uint32_t triggerHash, std::uint8_t player,
                                      const std::vector<std::uint64_t>& callers, std::uint64_t target) const {
  const em5::NetworkManager* network = activeNetwork();
  if (!network || network->getMultiplayerHost() || !network->getMultiplayerClient()) return;
  const TriggerInstruction instruction{triggerHash, player, callers, target};
  qsf::game::BitStream stream;
  instruction.write(stream);
  logInfo("Client sends message with the size " + std::to_string(stream.getNumberOfBits()));
  noteSent(instruction);
  network->getMultiplayerClient()->sendOperationMessageToHost(MESSAGE, stream);
}

void ScriptHandler::sendCommandToClient(std::uint32_t commandHash, std::uint32_t player) const {
  const em5::NetworkManager* network = activeNetwork();
  if (!network || getLocalPlayerIndex() != 0 || !network->getMultiplayerHost()) return;
  qsf::game::BitStream stream;
  stream.write(false);
  stream.write(commandHash, 32);
  logInfo("Host sends message with the size " + std::to_string(stream.getNumberOfBits()));
  network->getMultiplayerHost()->sendOperationMessageToClient(player, MESSAGE, stream);
}

bool ScriptHandler::receiveMessage(std::uint32_t senderIndex, std::uint32_t /*messageId*/,
                                   qsf::game::BitStream& stream) {
  logInfo("Recieved Bitstream with length" + std::to_string(stream.getNumberOfBits()));
  bool isTrigger = false;
  if (!stream.read(isTrigger)) return false;
  if (!isTrigger) return receiveCommand(stream);
  TriggerInstruction instruction;
  if (!instruction.read(stream)) return false;
  const em5::NetworkManager* network = activeNetwork();
  if (network && network->getMultiplayerHost()) {
    hintAtForeignPlayer(instruction, senderIndex);
    applyOnHost(instruction);
  } else {
    logInfo("1- " + std::to_string(instruction.player));
    applyOnClient(instruction);
  }
  return true;
}

}
