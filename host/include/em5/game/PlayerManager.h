#pragma once
#include "em5/game/Player.h"

#include <memory>
#include <vector>

namespace em5 {

/// The players of a running game, by join order. Owned by the game. There is always a local player.
class QSF_API PlayerManager {
public:
  PlayerManager();
  PlayerManager(const PlayerManager&) = delete;
  PlayerManager& operator=(const PlayerManager&) = delete;

  Player* getLocalPlayer() const { return mPlayers.front().get(); }
  std::vector<Player*> getAllPlayers() const;
  /// Null if nobody has that index.
  Player* getPlayerByIndex(unsigned int playerIndex) const;
  /// A further player; null if the index is taken.
  Player* addPlayer(unsigned int playerIndex);
  /// The local player stays.
  void removePlayer(unsigned int playerIndex);

private:
  std::vector<std::unique_ptr<Player>> mPlayers;
};

}
