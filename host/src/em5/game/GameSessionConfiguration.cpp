#include "em5/game/GameSessionConfiguration.h"

namespace em5 {

std::optional<GameModeType> parseGameModeType(std::string_view text) {
  if (text == "campaign") return GameModeType::CAMPAIGN;
  if (text == "endless") return GameModeType::FREEPLAY_ENDLESS;
  if (text == "challenge") return GameModeType::FREEPLAY_CHALLENGE;
  if (text == "coop") return GameModeType::MULTIPLAY_COOP;
  if (text == "competitive") return GameModeType::MULTIPLAY_COMPETITIVE;
  return std::nullopt;
}

void GameSessionConfiguration::setupForFreeplay(const MapIdentifier& map, const std::string& savegame) {
  mMapIdentifier = map;
  mSavegame = savegame;
  mGameModeType = GameModeType::FREEPLAY_ENDLESS;
}

}
