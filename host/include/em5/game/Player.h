#pragma once
#include "qsf/Export.h"

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

private:
  std::string mName;
  unsigned int mPlayerIndex;
};

}
