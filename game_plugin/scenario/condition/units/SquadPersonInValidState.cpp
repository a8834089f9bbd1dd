#include "game_plugin/scenario/condition/units/SquadUnitInValidState.h"

namespace script {

struct SquadPersonInValidStateCondition : SquadUnitInValidStateCondition {};

static void read(SquadPersonInValidStateCondition& condition, const Tokens& tokens) { readLists(condition, tokens); }

static bool test(const SquadPersonInValidStateCondition& condition, ScenarioHandler& handler) {
  return filterSquadPersonsInValidState(condition, handler);
}

CONDITION(SquadPersonInValidState, "Units", "True if at least one entity is a valid person and belongs to the player")

}
