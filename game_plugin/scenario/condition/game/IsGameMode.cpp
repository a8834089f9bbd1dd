#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/application/Application.h"
#include "em5/game/Game.h"

namespace script {

struct IsGameModeCondition : DefaultCondition {
  bool endless;
  bool challenge;
  bool campaign;
  bool multiplayerCoop;
  bool multiplayerCompetive;
};

static void read(IsGameModeCondition& condition, ParameterReader& in) {
  condition.endless = in.flag(1, true, "Endless", "Singleplayer endless mode");
  condition.challenge = in.flag(2, true, "Challenge", "Singleplayer endless mode");
  condition.campaign = in.flag(3, false, "Campaign", "Singleplayer endless mode");
  condition.multiplayerCoop = in.flag(4, false, "Multiplayer_Coop", "Multiplayer_Coop mode");
  condition.multiplayerCompetive = in.flag(5, false, "Multiplayer_Competive", "Multiplayer competive");
}

static bool test(const IsGameModeCondition& condition, ScenarioHandler&) {
  const qsf::UniqueInstance<em5::Application> application;
  if (!qsf::UniqueInstance<em5::Game>() || !application) return false;
  switch (application->getGameSessionConfiguration().getGameModeType()) {
  case em5::GameModeType::CAMPAIGN:
    return condition.campaign;
  case em5::GameModeType::FREEPLAY_ENDLESS:
    return condition.endless;
  case em5::GameModeType::FREEPLAY_CHALLENGE:
    return condition.challenge;
  case em5::GameModeType::MULTIPLAY_COOP:
    return condition.multiplayerCoop;
  case em5::GameModeType::MULTIPLAY_COMPETITIVE:
    return condition.multiplayerCompetive;
  }
  return false;
}

CONDITION(IsGameMode, "General", "Returns true if one of the selected game modes is currently running")

}
