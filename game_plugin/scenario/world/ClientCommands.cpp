#include "game_plugin/scenario/world/ClientCommands.h"

#include "game_plugin/multiplayer/ScriptHandler.h"

namespace script {

bool sendCommandToClient(const em5::Player& player, std::uint32_t commandHash) {
  const multiplayer::ScriptHandler* handler = multiplayer::ScriptHandler::get();
  if (!handler) return false;
  handler->sendCommandToClient(commandHash, player.getPlayerIndex());
  return true;
}

}
