#include "game_plugin/scenario/condition/units/SquadUnitInValidState.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SquadVehicleInValidStateCondition : SquadUnitInValidStateCondition {
  static constexpr std::string_view ODDITIES[] = {
      "It tests persons, as SquadPersonInValidState does: vehicles never pass.",
  };
};

static void read(SquadVehicleInValidStateCondition& condition, ParameterReader& in) { readLists(condition, in); }

static bool test(const SquadVehicleInValidStateCondition& condition, ScenarioHandler& handler) {
  return filterSquadPersonsInValidState(condition, handler);
}

CONDITION(SquadVehicleInValidState, "Units", "True if at least one entity is a valid vehicle and belongs to the player")

}
