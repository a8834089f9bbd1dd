#pragma once
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

/// What the effects have in common that set a property of each entity of a list.
struct SetPropertyOfAllEffect : DefaultEffect {
  Argument entityList;
  Argument component;
  Argument property;
  Argument value;
};

/// Sets the property of each entity that has the component. `valueText()` gives the text, asked for each of them; the
/// reflection turns it into the property's type. Entities that lack the component or can't take the value are passed
/// over.
template <class ValueText>
void setPropertyOfAll(const SetPropertyOfAllEffect& effect, ScenarioHandler& handler, ValueText&& valueText) {
  forEachComponent(handler, effect.entityList, effect.component.text(), passOver,
                   [&](const qsf::Entity&, qsf::Component& component) {
                     tryReflected(component, effect.property, [&] {
                       const std::string value = valueText();
                       reflect(component).set(effect.property.text(), camp::Value(value));
                     });
                   });
}

/// Sets it to a text or `svar(name)`.
inline void setPropertyToArgument(const SetPropertyOfAllEffect& effect, ScenarioHandler& handler) {
  setPropertyOfAll(effect, handler, [&] { return handler.ResolveString(effect.value); });
}

}
