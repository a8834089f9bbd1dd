#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Selection.h"

namespace script {

struct AddSelectionToEntityIdListEffect : DefaultEffect {
  Argument entityList;
  bool deleteOldEntities = false;
};

static void read(AddSelectionToEntityIdListEffect& effect, ParameterReader& in) {
  effect.entityList = in.listOut(1, "no_list", "EntityList", "List that gets the selected units");
  effect.deleteOldEntities = in.flag(2, false, "Delete old entities", "Empties the list before units are added");
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
