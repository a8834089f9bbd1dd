#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct GetNextEntryFromEntityListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The index is raised first, so that the first call gives the second entity.",
      "With one entity in the list the index isn't touched.",
      "Nothing happens if both lists have the same name.",
  };

  Argument entityList;
  Argument index;
  Argument entityListOut;
};

static void read(GetNextEntryFromEntityListEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "List to go through");
  effect.index =
      in.variableInOut(2, "index_var", "index", "Name of the variable that holds the place in the list, from 0");
  effect.entityListOut = in.listOut(3, "no_list", "EntityListOUT", "List that gets the next entity");
}

/// The place that a cursor means; the size if it is past the end. A negative or senseless number is past the end, too,
/// as it would be as an unsigned one.
static std::size_t placeOf(float cursor, std::size_t size) {
  return cursor > -1.0f && cursor < static_cast<float>(size) ? static_cast<std::size_t>(cursor < 0 ? 0 : cursor) : size;
}

static void run(const GetNextEntryFromEntityListEffect& effect, ScenarioHandler& handler) {
  if (effect.entityList == effect.entityListOut) return; // the list would be lost
  handler.ClearEntityList(effect.entityListOut);
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  if (ids.empty()) return;
  if (ids.size() == 1) return handler.AddToEntityList(effect.entityListOut, ids.front());
  const float cursor = handler.ResolveFloat(effect.index) + 1;
  handler.SetFloatVariable(effect.index, cursor);
  std::size_t place = placeOf(cursor, ids.size());
  if (place >= ids.size()) {
    place = 0;
    handler.SetFloatVariable(effect.index, 0);
  }
  handler.AddToEntityList(effect.entityListOut, ids[place]);
}

EFFECT(GetNextEntryFromEntityList, "EntityList",
       "Gives the entities of a list one after another. Behind the last one it begins anew")

}
