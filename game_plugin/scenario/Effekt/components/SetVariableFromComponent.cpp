#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SetVariableFromComponentEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "In spite of its name it sets a property of the component; no variable of the script changes.",
  };

  Argument entityList;
  Argument component;
  Argument variable;
  Argument value;
};

static void read(SetVariableFromComponentEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that have the component");
  effect.component = in.component(2, "no_component", "ComponentName", "Class name of the component");
  effect.variable = in.property(3, 2, "no_var", "Variable", "Property of the component");
  effect.value = in.text(4, "no_value", "Value", "The new value");
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
