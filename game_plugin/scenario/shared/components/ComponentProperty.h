#pragma once
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Reflection.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include <exception>
#include <string_view>

namespace script {

/// What the conditions have in common that test a reflected property of a list's entities. Component and property are
/// compared as they stand in the text.
struct ComponentPropertyCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "An entity that lacks the component or the property, or whose value doesn't convert, fails the test without a "
      "message.",
  };

  Argument entityList;
  Argument component;
  Argument propertyName;
  Argument stringToCheck;
  Argument entityListOut;
  RunState<bool> failureSeen; ///< an access has failed at least once
};

/// Reads the three parameters that name the property; they come first in each of these conditions.
inline void readPropertyAddress(ComponentPropertyCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "", "EntityList", "Units that shall be checked");
  condition.component = in.component(2, "", "Component", "Component that shall be checked");
  condition.propertyName = in.property(3, 2, "", "PropertyName", "Property of the Component that shall be checked");
  condition.failureSeen = in.state<bool>();
}

/// Reads what the value is compared with, a text or a number, and the out list, which come last; `index` is that of the
/// former.
inline void readComparandAndListOut(ComponentPropertyCondition& condition, ParameterReader& in, int index,
                                    ParameterRole role) {
  condition.stringToCheck =
      in.of(role, index, "", "StringToCheck", "String that we hope to find inside the Property-Value");
  condition.entityListOut = in.listOut(index + 1, "", "EntityListOut", "Units that shall be checked");
}

/// Filters the list by `passes(value)`, the value being a camp::Value. An access that fails is a failed test of that
/// entity: scripts try properties that not every entity has, so nothing is logged and the walk goes on.
template <class Test>
bool filterByProperty(const ComponentPropertyCondition& condition, ScenarioHandler& handler, Test&& passes) {
  if (hints::isOn()) hintUnknownComponent(condition.component);
  const qsf::StringHash componentId(condition.component.text());
  return filterIntoList(handler, condition.entityList, condition.entityListOut, [&](qsf::Entity& entity) {
    qsf::Component* component = entity.getComponentById(componentId);
    if (!component) return false;
    try {
      return passes(reflect(*component).get(condition.propertyName.text()));
    } catch (const std::exception& fault) {
      handler.stateOf(condition.failureSeen) = true;
      if (hints::isOn()) hintFailedAccess(*component, condition.propertyName, fault);
      return false;
    }
  });
}

}
