#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/Placeholder.h"
#include "game_plugin/scenario/shared/Selection.h"

namespace script {

struct IsAnyEntitySelectedCondition : DefaultCondition {
  Argument entityList;
  bool clearOldList;
};

static void read(IsAnyEntitySelectedCondition& condition, const Tokens& tokens) {
  condition.entityList =
      readStringParameter(tokens, 1, "no_list", "EntityList", "The name of the EntityList, which should be used");
  condition.clearOldList =
      readBoolParameter(tokens, 2, true, "ClearOldList",
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
  return handler.GetEntityListSize(condition.entityList) != 0;
}

CONDITION(IsAnyEntitySelected, "Units",
          "Returns true if any entity is selected and write the entity into an entiyList<br>INFO: terrain and streets "
          "are no entity")

}
