#include "em5/multiplayer/Session.h"

#include "em5/game/Game.h"
#include "qsf/log/LogSystem.h"

#include <string>

namespace em5::multiplayer {

SessionBase::SessionBase(std::uint8_t localIndex, std::unique_ptr<Transport> transport)
    : mLocalIndex(localIndex), mTransport(std::move(transport)) {}

SessionBase::~SessionBase() = default;

void SessionBase::tell(const Traffic& traffic) const {
  if (mListener) mListener(traffic);
}

void SessionBase::addOther(std::uint8_t player) {
  if (player == mLocalIndex || !mOthers.insert(player).second) return;
  addPlayersToGame();
  mHandlerManager.tellPlayerJoined(player);
}

void SessionBase::addPlayersToGame() const {
  const qsf::UniqueInstance<Game> game;
  if (!game) return;
  for (const std::uint8_t other : mOthers)
    if (Player* player = game->getPlayerManager()->addPlayer(other)) player->getUnitPool().load("default_unitpool");
}

void SessionBase::removeOther(std::uint8_t player) {
  if (mOthers.erase(player) == 0) return;
  qsf::logMessage(qsf::LogSystem::WARNING, player == 0 ? std::string("The host has left the session")
                                                       : "Player " + std::to_string(player) + " has left the session");
  mHandlerManager.tellPlayerLeft(player);
}

void SessionBase::sendOperationMessage(std::uint8_t receiver, std::uint32_t number,
                                       const qsf::game::BitStream& stream) {
  if (!mOthers.contains(receiver)) return;
  if (stream.getBytes().size() > Envelope::MOST_BYTES) {
    qsf::logMessage(qsf::LogSystem::ERROR, "Operation message " + std::to_string(number) + " is too long to be sent");
    return;
  }
  mTransport->send(receiver, {Envelope::Kind::OPERATION, mLocalIndex, number, stream});
  tell({Traffic::Kind::SENT, receiver, number, 0, stream.getNumberOfBits(), true});
}

void SessionBase::takeMessage(std::uint8_t sender, std::uint32_t number, const qsf::game::BitStream& stream) {
  const bool understood = mHandlerManager.dispatch(sender, number, stream);
  tell({Traffic::Kind::RECEIVED, sender, number, 0, stream.getNumberOfBits(), understood});
}

void SessionBase::receive() {
  for (Transport::Event& event : mTransport->receive()) {
    if (event.kind == Transport::Event::Kind::JOINED) {
      addOther(event.player);
    } else if (event.kind == Transport::Event::Kind::LEFT) {
      removeOther(event.player);
    } else if (event.envelope.kind == Envelope::Kind::OPERATION) {
      // Who sent it is known from the connection that it came on, not from what it says of itself.
      takeMessage(event.player, event.envelope.number, event.envelope.stream);
    } else if (mLocalIndex != 0 && event.player == 0) {
      for (const DataCacheSystem::Item& item : mDataCache.readUpdate(event.envelope.number, event.envelope.stream))
        tell({Traffic::Kind::SYNCED, 0, 0, item.entity, item.bits, true});
    }
  }
}

void SessionBase::sendDataCacheUpdate() {
  const DataCacheSystem::Update update = mDataCache.writeUpdate(Envelope::MOST_BYTES);
  for (const qsf::game::BitStream& stream : update.streams)
    for (const std::uint8_t other : mOthers)
      mTransport->send(other, {Envelope::Kind::DATA_CACHE, mLocalIndex, mDataCache.getTick(), stream});
  for (const DataCacheSystem::Item& item : update.items)
    tell({Traffic::Kind::SYNCED, 0, 0, item.entity, item.bits, true});
}

void SessionBase::finishFrame(qsf::Time timePassed) {
  if (mLocalIndex == 0 && mDataCache.advance(timePassed)) sendDataCacheUpdate();
  mTransport->flush();
}

namespace server {

void Host::sendOperationMessageToAllClients(std::uint32_t number, const qsf::game::BitStream& stream) {
  for (const std::uint8_t other : getOthers())
    sendOperationMessage(other, number, stream);
}

void Host::sendOperationMessageToClient(std::uint32_t player, std::uint32_t number,
                                        const qsf::game::BitStream& stream) {
  if (player > 0 && player <= 0xFF) sendOperationMessage(static_cast<std::uint8_t>(player), number, stream);
}

}

namespace client {

void Client::sendOperationMessageToHost(std::uint32_t number, const qsf::game::BitStream& stream) {
  sendOperationMessage(0, number, stream);
}

}

}
