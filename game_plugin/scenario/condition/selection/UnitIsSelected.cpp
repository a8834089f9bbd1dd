#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/Selection.h"

namespace script {

struct UnitIsSelectedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "With AllUnitsFromListMustBeSelected false it also holds if no unit of the list is selected.",
      "It holds for an empty list.",
  };

  Argument entityList;
  bool allUnitsMustBeSelected;
};

static void read(UnitIsSelectedCondition& condition, ParameterReader& in) {
  condition.entityList =
      in.list(1, "", "EntityList", "Either a variable list with all untits that shall be checked or a entityid");
  condition.allUnitsMustBeSelected =
      in.flag(2, true, "AllUnitsFromListMustBeSelected",
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
  // In either mode, on purpose.
  return true;
}

CONDITION(UnitIsSelected, "General", "Returns true if all units from the entity list are selected")

}
