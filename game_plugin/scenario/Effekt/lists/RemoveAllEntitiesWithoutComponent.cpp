#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/FilterByComponent.h"

namespace script {

struct RemoveAllEntitiesWithoutComponentEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A component that is left out isn't reported as missing: no entity has a no_comp, so that the list is emptied.",
  };

  Argument entityList;
  Argument component;
};

static void read(RemoveAllEntitiesWithoutComponentEffect& effect, ParameterReader& in) {
  effect.entityList = in.listInOut(1, "no_list", "EntityList", "Name of the list");
  effect.component = in.component(2, "no_comp", "Component", "Class name of the component");
}

static void run(const RemoveAllEntitiesWithoutComponentEffect& effect, ScenarioHandler& handler) {
  filterByComponent(handler, effect.entityList, effect.component, KeepEntities::WITH,
                    "RemoveAllEntitiesWithoutComponentEffect::EntityList was not found",
                    "RemoveAllEntitiesWithoutComponentEffect::ComponentName was not found");
}

EFFECT(RemoveAllEntitiesWithoutComponent, "EntityLists", "Removes the entities of a list that lack a component")

}
