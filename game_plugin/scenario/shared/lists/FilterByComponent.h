#pragma once
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/component/Component.h"

namespace script {

enum class KeepEntities { WITH, WITHOUT };

/// Keeps the entities of a list that have a component, or those that have it not. Ids without an entity are lost. The
/// messages are those of a list and of a component name that were left at their placeholders.
inline void filterByComponent(ScenarioHandler& handler, const Argument& list, const Argument& component,
                              KeepEntities keep, const char* listMessage, const char* componentMessage) {
  if (isLeftAt(list.text(), "no_list", listMessage)) return;
  const std::string& className = handler.ResolveString(component);
  if (isLeftAt(className, "no_component", componentMessage)) return;
  if (hints::isOn()) hintUnknownComponent(className);
  const qsf::StringHash componentId(className);
  filterIntoList(handler, list, list, [&](const qsf::Entity& entity) {
    return (entity.getComponentById(componentId) != nullptr) == (keep == KeepEntities::WITH);
  });
}

}
