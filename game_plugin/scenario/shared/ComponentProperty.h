#pragma once
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/Reflection.h"

#include <exception>

namespace script {

/// What the conditions have in common that test a reflected property of a list's entities. Component and property are
/// compared as they stand in the text.
struct ComponentPropertyCondition : DefaultCondition {
  Argument entityList;
  Argument component;
  Argument propertyName;
  Argument stringToCheck;
  Argument entityListOut;
  mutable bool failureSeen = false; ///< a reflected access failed at least once; for tools
};

/// Reads the three parameters that name the property; they come first in each of these conditions.
inline void readPropertyAddress(ComponentPropertyCondition& condition, const Tokens& tokens) {
  condition.entityList = readStringParameter(tokens, 1, "", "EntityList", "Units that shall be checked");
  condition.component = readStringParameter(tokens, 2, "", "Component", "Component that shall be checked");
  condition.propertyName =
      readStringParameter(tokens, 3, "", "PropertyName", "Property of the Component that shall be checked");
}

/// Reads the text to compare with and the out list, which come last; `index` is that of the text.
inline void readTextAndListOut(ComponentPropertyCondition& condition, const Tokens& tokens, int index) {
  condition.stringToCheck =
      readStringParameter(tokens, index, "", "StringToCheck", "String that we hope to find inside the Property-Value");
  condition.entityListOut = readStringParameter(tokens, index + 1, "", "EntityListOut", "Units that shall be checked");
}

/// Filters the list by `passes(value)`, the value being a camp::Value. An access that fails is a failed test of that
/// entity: scripts try properties that not every entity has, so nothing is logged and the walk goes on.
template <class Test>
bool filterByProperty(const ComponentPropertyCondition& condition, ScenarioHandler& handler, Test&& passes) {
  const qsf::StringHash componentId(condition.component.text());
  return filterIntoList(handler, condition.entityList, condition.entityListOut, [&](qsf::Entity& entity) {
    qsf::Component* component = entity.getComponentById(componentId);
    if (!component) return false;
    try {
      return passes(reflect(*component).get(condition.propertyName.text()));
    } catch (const std::exception&) {
      condition.failureSeen = true;
      return false;
    }
  });
}

}
