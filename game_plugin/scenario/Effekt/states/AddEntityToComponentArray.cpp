#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct AddEntityToComponentArrayEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "No array changes: the list of callers is read, and nothing else happens.",
  };

  Argument entityListCaller;
};

static void read(AddEntityToComponentArrayEffect& effect, ParameterReader& in) {
  effect.entityListCaller =
      in.list(1, "no_list", "EntityList Caller", "Entities with the component (work in progress)");
  in.component(2, "no_Component", "ComponentName", "Component that has the array (work in progress)");
  in.unused(3, "no_Array", "ArrayName", "Name of the array (work in progress)");
  in.unused(4, "no_list", "EntityListChilds", "Entities to add (work in progress)");
}

static void run(const AddEntityToComponentArrayEffect& effect, ScenarioHandler& handler) {
  handler.ResolveEntityList(effect.entityListCaller);
}

EFFECT(AddEntityToComponentArray, "Units", "Was meant to add entities to an array of a component; does nothing")

}
