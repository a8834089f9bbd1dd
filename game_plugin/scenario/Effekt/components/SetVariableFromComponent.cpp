#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ComponentWalk.h"
#include "game_plugin/scenario/shared/Placeholder.h"

namespace script {

struct SetVariableFromComponentEffect : DefaultEffect {
  Argument entityList;
  Argument component;
  Argument variable;
  Argument value;
};

static void read(SetVariableFromComponentEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Entities that have the component");
  effect.component = readStringParameter(tokens, 2, "no_component", "ComponentName", "Class name of the component");
  effect.variable = readStringParameter(tokens, 3, "no_var", "Variable", "Property of the component");
  effect.value = readStringParameter(tokens, 4, "no_value", "Value", "The new value");
}

static void run(const SetVariableFromComponentEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "SetVariableFromComponentEffect::EntityList not found")) return;
  const std::string& className = effect.component.text();
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  bool found = false;
  forEachComponent(ids, className, passOver, [&](const qsf::Entity&, qsf::Component& component) {
    found = true;
    const std::string value = handler.ResolveString(effect.value);
    component.setPropertyValuesByString(handler.ResolveString(effect.variable) + "=\"" + value + "\"");
  });
  if (!found && !ids.empty()) logInfo("SetVariableFromComponentEffect: didnt find your component: " + className);
}

EFFECT(SetVariableFromComponent, "Components", "Sets a property of a component")

}
