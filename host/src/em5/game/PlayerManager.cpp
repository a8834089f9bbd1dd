#include "em5/game/PlayerManager.h"

#include <algorithm>

namespace em5 {

PlayerManager::PlayerManager() {
  mPlayers.push_back(std::make_unique<Player>(0));
  mLocalPlayer = mPlayers.front().get();
}

std::vector<Player*> PlayerManager::getAllPlayers() const {
  std::vector<Player*> players;
  for (const auto& player : mPlayers)
    players.push_back(player.get());
  return players;
}

Player* PlayerManager::getPlayerByIndex(unsigned int playerIndex) const {
  for (const auto& player : mPlayers)
    if (player->getPlayerIndex() == playerIndex) return player.get();
  return nullptr;
}

Player* PlayerManager::addPlayer(unsigned int playerIndex) {
  if (getPlayerByIndex(playerIndex)) return nullptr;
  const auto behind = std::find_if(mPlayers.begin(), mPlayers.end(),
                                   [&](const auto& player) { return player->getPlayerIndex() > playerIndex; });
  return mPlayers.insert(behind, std::make_unique<Player>(playerIndex))->get();
}

void PlayerManager::removePlayer(unsigned int playerIndex) {
  std::erase_if(mPlayers, [&](const auto& player) {
    return player.get() != mLocalPlayer && player->getPlayerIndex() == playerIndex;
  });
}

void PlayerManager::setLocalPlayer(unsigned int playerIndex) {
  Player* player = getPlayerByIndex(playerIndex);
  mLocalPlayer = player ? player : addPlayer(playerIndex);
}

}
