#include "em5/multiplayer/NetworkManager.h"

#include "qsf/log/FaultCounter.h"

namespace em5 {

NetworkManager::NetworkManager() = default;

NetworkManager::~NetworkManager() { endSession(); }

multiplayer::SessionBase& NetworkManager::createSession(std::uint8_t localIndex,
                                                        std::unique_ptr<multiplayer::Transport> transport,
                                                        const std::vector<std::uint8_t>& others) {
  endSession();
  if (localIndex == 0) {
    auto host = std::make_unique<multiplayer::server::Host>(std::move(transport));
    mHost = host.get();
    mSession = std::move(host);
  } else {
    auto client = std::make_unique<multiplayer::client::Client>(localIndex, std::move(transport));
    mClient = client.get();
    mSession = std::move(client);
  }
  mSession->setTrafficListener(mListener);
  qsf::callGuarded([&] { mSessionCreated(*mSession); }, [] { return std::string("a listener of created sessions"); });
  for (const std::uint8_t other : others)
    mSession->addOther(other);
  if (mGameRunning) mSession->getDataCacheSystem().startGame();
  return *mSession;
}

void NetworkManager::endSession() {
  mHost = nullptr;
  mClient = nullptr;
  mSession.reset();
}

void NetworkManager::setTrafficListener(multiplayer::TrafficListener listener) {
  mListener = std::move(listener);
  if (mSession) mSession->setTrafficListener(mListener);
}

void NetworkManager::startGame() {
  mGameRunning = true;
  if (!mSession) return;
  mSession->addPlayersToGame();
  mSession->getDataCacheSystem().startGame();
}

void NetworkManager::stopGame() {
  mGameRunning = false;
  if (mSession) mSession->getDataCacheSystem().stopGame();
}

void NetworkManager::receive() {
  if (mSession) mSession->receive();
}

void NetworkManager::finishFrame(qsf::Time timePassed) {
  if (mSession) mSession->finishFrame(timePassed);
}

}
