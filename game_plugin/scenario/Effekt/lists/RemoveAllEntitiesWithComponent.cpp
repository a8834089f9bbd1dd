#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/FilterByComponent.h"

namespace script {

struct RemoveAllEntitiesWithComponentEffect : DefaultEffect {
  Argument entityList;
  Argument component;
};

static void read(RemoveAllEntitiesWithComponentEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Name of the list");
  effect.component = readStringParameter(tokens, 2, "no_component", "ComponentName", "Class name of the component");
}

static void run(const RemoveAllEntitiesWithComponentEffect& effect, ScenarioHandler& handler) {
  filterByComponent(handler, effect.entityList, effect.component, KeepEntities::Without,
                    "RemoveAllEntitiesWithComponentEffect::EntityList not found",
                    "RemoveAllEntitiesWithComponentEffect::ComponentName not found");
}

EFFECT(RemoveAllEntitiesWithComponent, "EntityLists", "Removes the entities of a list that have a component")

}
