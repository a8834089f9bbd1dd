#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/Selection.h"

namespace script {

struct UnitIsSelectedCondition : DefaultCondition {
  Argument entityList;
  bool allUnitsMustBeSelected;
};

static void read(UnitIsSelectedCondition& condition, const Tokens& tokens) {
  condition.entityList = readStringParameter(
      tokens, 1, "", "EntityList", "Either a variable list with all untits that shall be checked or a entityid");
  condition.allUnitsMustBeSelected =
      readBoolParameter(tokens, 2, true, "AllUnitsFromListMustBeSelected",
                        "If false only one unit must be selected for the condition to return true");
}

static bool test(const UnitIsSelectedCondition& condition, ScenarioHandler& handler) {
  const em5::SelectionManager* selection = findGameSelection();
  if (!selection) return false;
  for (const std::uint64_t id : handler.ResolveEntityList(condition.entityList)) {
    if (!findEntity(id)) {
      logInfo("UnitIsSelected: entity with the id \"" + std::to_string(id) +
              "\" is not valid. Condition returns false");
      return false;
    }
    if (selection->isIdSelected(id) != condition.allUnitsMustBeSelected) return !condition.allUnitsMustBeSelected;
  }
  // Kept for either mode: scripts rely on the condition holding when one unit is asked for and none is selected.
  return true;
}

CONDITION(UnitIsSelected, "General", "Returns true if all units from the entity list are selected")

}
