#include "game_plugin/scenario/condition/units/SquadUnitInValidState.h"

namespace script {

struct SquadVehicleInValidStateCondition : SquadUnitInValidStateCondition {};

static void read(SquadVehicleInValidStateCondition& condition, const Tokens& tokens) { readLists(condition, tokens); }

/// Kept: the test is that of persons, whatever the name says. Scripts rely on vehicles being filtered out here.
static bool test(const SquadVehicleInValidStateCondition& condition, ScenarioHandler& handler) {
  return filterSquadPersonsInValidState(condition, handler);
}

CONDITION(SquadVehicleInValidState, "Units", "True if at least one entity is a valid vehicle and belongs to the player")

}
