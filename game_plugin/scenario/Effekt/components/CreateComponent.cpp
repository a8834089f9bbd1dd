#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

namespace script {

struct CreateComponentEffect : DefaultEffect {
  Argument entityList;
  Argument component;
};

static void read(CreateComponentEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList Caller", "Entities that get the component");
  effect.component = readStringParameter(tokens, 2, "no_Component", "Component", "Class name of the component");
}

/// Kept: a class that doesn't exist passes without a message, though the description promises one.
static void run(const CreateComponentEffect& effect, ScenarioHandler& handler) {
  const qsf::StringHash componentId(effect.component.text());
  forEachEntity(handler, effect.entityList,
                [&](qsf::Entity& entity) { entity.getOrCreateComponentById(componentId, true); });
}

EFFECT(CreateComponent, "Components", "Creates a component for entities. Logs whether it was possible")

}
