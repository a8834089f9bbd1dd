#pragma once
#include "em5/game/Player.h"

#include <memory>
#include <vector>

namespace em5 {

/// The players of a running game, by index, which is the order of their joining. Owned by the game. There is always a
/// local player.
class QSF_API PlayerManager {
public:
  PlayerManager();
  PlayerManager(const PlayerManager&) = delete;
  PlayerManager& operator=(const PlayerManager&) = delete;

  /// Who plays on this machine: index 0 unless it is a client of a session.
  Player* getLocalPlayer() const { return mLocalPlayer; }
  std::vector<Player*> getAllPlayers() const;
  /// Null if nobody has that index.
  Player* getPlayerByIndex(unsigned int playerIndex) const;
  /// A further player; null if the index is taken.
  Player* addPlayer(unsigned int playerIndex);
  /// The local player stays.
  void removePlayer(unsigned int playerIndex);
  /// Makes a player the local one, and a new one if nobody has that index.
  void setLocalPlayer(unsigned int playerIndex);

private:
  std::vector<std::unique_ptr<Player>> mPlayers;
  Player* mLocalPlayer;
};

}
