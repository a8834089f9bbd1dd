#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/Selection.h"

namespace script {

struct IsAnyEntitySelectedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "With ClearOldList false it also holds if nothing is selected and the list holds ids from before.",
  };

  Argument entityList;
  bool clearOldList;
};

static void read(IsAnyEntitySelectedCondition& condition, ParameterReader& in) {
  condition.entityList = in.listOut(1, "no_list", "EntityList", "The name of the EntityList, which should be used");
  condition.clearOldList =
      in.flag(2, true, "ClearOldList",
              "true=clear the entries of an existing list<br>false = if entityList is already existing, the "
              "entity under mouse will be added");
}

static bool test(const IsAnyEntitySelectedCondition& condition, ScenarioHandler& handler) {
  const auto* selection = findCurrentSelection();
  if (!selection) return false;
  if (!isLeftAt(condition.entityList.text(), "no_list", "IsAnyEntitySelectedCondition::EntityList was not found")) {
    if (condition.clearOldList) handler.ClearEntityList(condition.entityList);
    for (const std::uint64_t id : selection->getSelectedIdSet())
      if (findEntity(id)) handler.AddToEntityList(condition.entityList, id);
  }
  return handler.getEntityListSize(condition.entityList) != 0;
}

CONDITION(IsAnyEntitySelected, "Units",
          "Returns true if any entity is selected and write the entity into an entiyList<br>INFO: terrain and streets "
          "are no entity")

}
