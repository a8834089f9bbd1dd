#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/FilterByComponent.h"

namespace script {

struct RemoveAllEntitiesWithComponentEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Ids without an entity are removed, too.",
  };

  Argument entityList;
  Argument component;
};

static void read(RemoveAllEntitiesWithComponentEffect& effect, ParameterReader& in) {
  effect.entityList = in.listInOut(1, "no_list", "EntityList", "Name of the list");
  effect.component = in.component(2, "no_component", "ComponentName", "Class name of the component");
}

static void run(const RemoveAllEntitiesWithComponentEffect& effect, ScenarioHandler& handler) {
  filterByComponent(handler, effect.entityList, effect.component, KeepEntities::WITHOUT,
                    "RemoveAllEntitiesWithComponentEffect::EntityList not found",
                    "RemoveAllEntitiesWithComponentEffect::ComponentName not found");
}

EFFECT(RemoveAllEntitiesWithComponent, "EntityLists", "Removes the entities of a list that have a component")

}
