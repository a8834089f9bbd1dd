#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/settings/GameSettingsGroup.h"

namespace script {

struct PlayerHasNameCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "A part of the name is enough, so an empty text always fits.",
      "Only the account of this machine is looked at.",
  };

  Argument playerName;
};

static void read(PlayerHasNameCondition& condition, ParameterReader& in) {
  condition.playerName = in.text(1, "Name", "PlayerName", "The name of the player with the given id");
}

static bool test(const PlayerHasNameCondition& condition, ScenarioHandler& handler) {
  const qsf::UniqueInstance<em5::GameSettingsGroup> settings;
  return settings &&
         settings->getSavedAccountname().find(handler.ResolveString(condition.playerName)) != std::string::npos;
}

CONDITION(PlayerHasName, "GUI", "Checks if Player has an specific name")

}
