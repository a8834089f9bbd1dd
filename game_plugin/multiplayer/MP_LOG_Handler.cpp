#include "game_plugin/multiplayer/MP_LOG_Handler.h"

#include "game_plugin/component/MP_LOG_COMPONENT.h"
#include "game_plugin/multiplayer/Network.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/world/LocalPlayer.h"

#include "em5/game/Game.h"
#include "em5/multiplayer/NetworkManager.h"
#include "qsf/Qsf.h"
#include "qsf/map/Entity.h"
#include "qsf/map/Map.h"

namespace script::multiplayer {

namespace {

constexpr unsigned int LENGTH_BITS = 16;

qsf::game::BitStream writeLine(const std::string& text, std::uint8_t player) {
  qsf::game::BitStream stream;
  stream.write(text, LENGTH_BITS);
  stream.write(player, 8);
  return stream;
}

}

MP_LOG_Handler* MP_LOG_Handler::get() { return hasLocalPlayer() ? handlerOfSession<MP_LOG_Handler>() : nullptr; }

void MP_LOG_Handler::sendLogToHost(const std::string& text, std::uint8_t player) const {
  const em5::NetworkManager* network = hasLocalPlayer() ? activeNetwork() : nullptr;
  if (!network || !network->getMultiplayerClient()) return;
  const qsf::game::BitStream stream = writeLine(text, player);
  logInfo("Client sends MP_LOG message with the size " + std::to_string(stream.getNumberOfBits()));
  network->getMultiplayerClient()->sendOperationMessageToHost(MESSAGE, stream);
}

void MP_LOG_Handler::sendLogFromHost(const std::string& text, std::uint8_t player) const {
  const em5::NetworkManager* network = hasLocalPlayer() ? activeNetwork() : nullptr;
  if (!network || !network->getMultiplayerHost()) return;
  const qsf::game::BitStream stream = writeLine(text, player);
  const std::string line = "Host sends MP_Log message with the size " + std::to_string(stream.getNumberOfBits());
  if (player == 0) {
    logInfo(line);
    network->getMultiplayerHost()->sendOperationMessageToAllClients(MESSAGE, stream);
    return;
  }
  const std::size_t players = qsf::UniqueInstance<em5::Game>()->getPlayerManager()->getAllPlayers().size();
  for (std::uint32_t index = 0; index < players; ++index) {
    if (index == player) continue;
    logInfo(line); // kept: for the host itself, too, which gets nothing
    network->getMultiplayerHost()->sendOperationMessageToClient(index, MESSAGE, stream);
  }
}

bool MP_LOG_Handler::receiveMessage(std::uint32_t /*senderIndex*/, std::uint32_t /*messageId*/,
                                    qsf::game::BitStream& stream) {
  logInfo("Recieved MP_LOG Bitstream with length" + std::to_string(stream.getNumberOfBits()));
  std::string text;
  std::uint8_t player = 0;
  if (!stream.read(text, LENGTH_BITS) || !stream.read(player, 8)) return false;
  if (getLocalPlayerIndex() == 0) sendLogFromHost(text, player);
  qsf::Entity* core = qsf::Qsf::instance()->getMainMap().getEntityById(qsf::Map::CORE_ENTITY_ID);
  if (core) core->getOrCreateComponent<MP_LOG_COMPONENT>()->addLogEntry(text, player);
  return true;
}

}
