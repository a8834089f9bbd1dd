#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/LocalPlayer.h"

namespace script {

struct GetLocalPlayerIdCondition : DefaultCondition {
  ComparisonOperator operatorText;
  Argument playerIndex;
};

static void read(GetLocalPlayerIdCondition& condition, ParameterReader& in) {
  condition.playerIndex = in.number(1, "0", "PlayerIndex", "0 = Player 1; 1 = Player 2...");
  condition.operatorText = in.comparison(2, "==", "Operator", "");
}

/// Without a game, as in the editor, nobody plays, and no comparison holds.
static bool test(const GetLocalPlayerIdCondition& condition, ScenarioHandler& handler) {
  if (!hasLocalPlayer()) return false;
  return condition.operatorText(static_cast<float>(getLocalPlayerIndex()), handler.ResolveFloat(condition.playerIndex));
}

CONDITION(GetLocalPlayerId, "Multiplayer", "Checks if the playerindex matchs (RealPlayerId %Operator% PlayerIndex)")

}
