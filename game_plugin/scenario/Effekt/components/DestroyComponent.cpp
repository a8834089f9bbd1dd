#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct DestroyComponentEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Each run logs the name of the component, also if nothing is destroyed.",
  };

  Argument entityList;
  Argument component;
};

static void read(DestroyComponentEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities whose component is destroyed");
  effect.component = in.component(2, "em5::MoveToDespawnComponent", "ComponentName", "Class name of the component");
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
