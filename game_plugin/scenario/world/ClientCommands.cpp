#include "game_plugin/scenario/world/ClientCommands.h"

namespace script {

bool sendCommandToClient(const em5::Player& /*player*/, std::uint32_t /*commandHash*/) {
  // The module registers its message handler with a session; there is none in single player.
  return false;
}

}
