#include "game_plugin/scenario/world/LocalPlayer.h"

#include "game_plugin/multiplayer/ScriptHandler.h"

#include "em5/game/Game.h"

namespace script {

bool hasLocalPlayer() { return static_cast<bool>(qsf::UniqueInstance<em5::Game>()); }

unsigned int getLocalPlayerIndex() {
  const qsf::UniqueInstance<em5::Game> game;
  return game ? game->getPlayerManager()->getLocalPlayer()->getPlayerIndex() : 0;
}

bool isLocalPlayerClient() { return getLocalPlayerIndex() != 0; }

bool sendTriggerToHost(std::uint32_t triggerHash, const std::vector<std::uint64_t>& callers, std::uint64_t target) {
  const multiplayer::ScriptHandler* handler = multiplayer::ScriptHandler::get();
  if (!handler) return false;
  handler->sendTriggerToHost(triggerHash, static_cast<std::uint8_t>(getLocalPlayerIndex()), callers, target);
  return true;
}

}
