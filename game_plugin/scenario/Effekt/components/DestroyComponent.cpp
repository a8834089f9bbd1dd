#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ComponentWalk.h"

namespace script {

struct DestroyComponentEffect : DefaultEffect {
  Argument entityList;
  Argument component;
};

static void read(DestroyComponentEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Entities whose component is destroyed");
  effect.component =
      readStringParameter(tokens, 2, "em5::MoveToDespawnComponent", "ComponentName", "Class name of the component");
}

static void run(const DestroyComponentEffect& effect, ScenarioHandler& handler) {
  const std::string className = handler.ResolveString(effect.component);
  logInfo(className);
  // Everything relies on these two.
  for (const char* needed : {"qsf::TransformComponent", "qsf::MetadataComponent"})
    if (className == needed) return logInfo("It is not possible to destroy the \"" + className + "\"");
  const qsf::StringHash componentId(className);
  forEachComponent(handler, effect.entityList, className, passOver,
                   [&](qsf::Entity& entity, const qsf::Component&) { entity.destroyComponentById(componentId); });
}

EFFECT(DestroyComponent, "Components", "Destroys a component of entities")

}
