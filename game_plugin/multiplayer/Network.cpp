#include "game_plugin/multiplayer/Network.h"

#include "em5/multiplayer/NetworkManager.h"
#include "em5/plugin/Plugin.h"

namespace script::multiplayer {

em5::NetworkManager* activeNetwork() {
  const em5::Plugin* plugin = em5::Plugin::getInstance();
  if (!plugin || !plugin->getNetworkManager().isMultiplayActive()) return nullptr;
  return &plugin->getNetworkManager();
}

}
