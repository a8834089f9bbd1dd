#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/Selection.h"

namespace script {

struct AddSelectionToEntityIdListEffect : DefaultEffect {
  Argument entityList;
  bool deleteOldEntities = false;
};

static void read(AddSelectionToEntityIdListEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "List that gets the selected units");
  effect.deleteOldEntities =
      readBoolParameter(tokens, 2, false, "Delete old entities", "Empties the list before units are added");
}

static void run(const AddSelectionToEntityIdListEffect& effect, ScenarioHandler& handler) {
  const em5::SelectionManager* selection = findGameSelection();
  if (!selection) return;
  if (effect.deleteOldEntities) handler.ClearEntityList(effect.entityList);
  for (const std::uint64_t id : selection->getSelectedIdSet())
    handler.AddToEntityList(effect.entityList, id);
}

EFFECT(AddSelectionToEntityIdList, "EntityLists", "Adds the units that the player has selected to a list")

}
