#pragma once
#include "em5/game/UnitPool.h"

#include <string>

namespace em5 {

/// Someone who plays. Owned by the player manager.
class QSF_API Player {
public:
  explicit Player(unsigned int playerIndex) : mPlayerIndex(playerIndex) {}

  /// 0 for the host of a session and in single player, 1 to 3 for clients.
  unsigned int getPlayerIndex() const { return mPlayerIndex; }
  /// For sessions, tests and tools: makes this machine a client from the next tick on.
  void setPlayerIndex(unsigned int playerIndex) { mPlayerIndex = playerIndex; }

  const std::string& getName() const { return mName; }
  void setName(const std::string& name) { mName = name; }

  /// The units that the player may have and has; that of the game's start is "default_unitpool".
  UnitPool& getUnitPool() { return mUnitPool; }
  const UnitPool& getUnitPool() const { return mUnitPool; }

private:
  UnitPool mUnitPool;
  std::string mName;
  unsigned int mPlayerIndex;
};

}
