#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Reflection.h"

namespace script {

struct ActivateComponentEffect : DefaultEffect {
  Argument component;
  Argument entityList;
  bool activate = true;
};

static void read(ActivateComponentEffect& effect, ParameterReader& in) {
  effect.component = in.component(1, "no_component", "Component", "Class name of the component");
  effect.entityList = in.list(2, "empty_list", "EntityList", "Entities that have it");
  effect.activate = in.flag(3, true, "ActivateComponent", "true activates it, false deactivates it");
}

static void run(const ActivateComponentEffect& effect, ScenarioHandler& handler) {
  for (const std::uint64_t id : handler.ResolveEntityList(effect.entityList)) {
    const qsf::Entity* entity = findEntity(id);
    if (!entity) {
      logError("ActivateComponent::Entity " + std::to_string(id) + " was not found");
      continue;
    }
    if (qsf::Component* component = findComponent(*entity, handler.ResolveString(effect.component)))
      component->setActive(effect.activate);
    else
      logError("ActivateComponent::Component " + effect.component.text() + " was not found for entity " +
               std::to_string(id));
  }
}

EFFECT(ActivateComponent, "Components", "Activates or deactivates a component of entities")

}
