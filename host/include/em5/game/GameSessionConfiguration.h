#pragma once
#include "em5/map/MapIdentifier.h"

#include <optional>
#include <string_view>

namespace em5 {

/// Numbers that scripts compare with; they don't change.
enum class GameModeType {
  CAMPAIGN = 0,
  FREEPLAY_ENDLESS = 1,
  FREEPLAY_CHALLENGE = 2,
  MULTIPLAY_COOP = 3,
  MULTIPLAY_COMPETITIVE = 4
};

/// "endless", "challenge", "campaign", "coop" or "competitive"; nothing for any other text.
QSF_API std::optional<GameModeType> parseGameModeType(std::string_view text);

/// Which game the next start makes. Owned by the application.
class QSF_API GameSessionConfiguration {
public:
  GameModeType getGameModeType() const { return mGameModeType; }
  void setGameModeType(GameModeType type) { mGameModeType = type; }
  const MapIdentifier& getMapIdentifier() const { return mMapIdentifier; }
  void setMapIdentifier(const MapIdentifier& map) { mMapIdentifier = map; }
  const std::string& getSavegame() const { return mSavegame; }

  /// An endless game on that map. A savegame name is kept for what asks for it; the headless host saves none.
  void setupForFreeplay(const MapIdentifier& map, const std::string& savegame);

private:
  MapIdentifier mMapIdentifier;
  std::string mSavegame;
  GameModeType mGameModeType = GameModeType::FREEPLAY_ENDLESS;
};

}
