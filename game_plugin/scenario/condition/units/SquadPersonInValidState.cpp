#include "game_plugin/scenario/condition/units/SquadUnitInValidState.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SquadPersonInValidStateCondition : SquadUnitInValidStateCondition {};

static void read(SquadPersonInValidStateCondition& condition, ParameterReader& in) { readLists(condition, in); }

static bool test(const SquadPersonInValidStateCondition& condition, ScenarioHandler& handler) {
  return filterSquadPersonsInValidState(condition, handler);
}

CONDITION(SquadPersonInValidState, "Units", "True if at least one entity is a valid person and belongs to the player")

}
