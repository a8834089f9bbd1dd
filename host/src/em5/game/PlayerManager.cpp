#include "em5/game/PlayerManager.h"

#include <algorithm>

namespace em5 {

PlayerManager::PlayerManager() { mPlayers.push_back(std::make_unique<Player>(0)); }

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
  mPlayers.push_back(std::make_unique<Player>(playerIndex));
  return mPlayers.back().get();
}

void PlayerManager::removePlayer(unsigned int playerIndex) {
  mPlayers.erase(std::remove_if(mPlayers.begin() + 1, mPlayers.end(),
                                [&](const auto& player) { return player->getPlayerIndex() == playerIndex; }),
                 mPlayers.end());
}

}
