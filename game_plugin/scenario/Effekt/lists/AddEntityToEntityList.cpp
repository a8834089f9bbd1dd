#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct AddEntityToEntityListEffect : DefaultEffect {
  Argument added;
  Argument increased;
};

static void read(AddEntityToEntityListEffect& effect, ParameterReader& in) {
  effect.added =
      in.list(1, "no_list", "EntityList_WhichShouldBeAdded", "Ids, or name of a list, whose entities are added");
  effect.increased = in.listOut(2, "no_list", "EntityList_WhichIsIncreased", "List that gets the entities");
}

static void run(const AddEntityToEntityListEffect& effect, ScenarioHandler& handler) {
  for (const Argument* list : {&effect.increased, &effect.added})
    if (isLeftAt(list->text(), "no_list", "AddEntityToEntityListEffect::EntityList not found " + list->text())) return;
  for (const std::uint64_t id : handler.ResolveEntityList(effect.added)) {
    if (findEntity(id))
      handler.AddToEntityList(effect.increased, id);
    else
      logError("AddEntityToEntityListEffect: entity " + std::to_string(id) + " was not found");
  }
}

EFFECT(AddEntityToEntityList, "EntityLists", "Adds the entities of a list to another list")

}
