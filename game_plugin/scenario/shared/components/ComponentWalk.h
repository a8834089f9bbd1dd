#pragma once
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/Reflection.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include <exception>
#include <string>

namespace script {

/// For each id that has an entity: `act(entity, component)` if it has the component of that class name, else
/// `onMissing(entity)`.
template <class OnMissing, class Act>
void forEachComponent(const EntityIds& ids, const std::string& className, OnMissing&& onMissing, Act&& act) {
  const qsf::StringHash componentId(className);
  bool looked = false;
  bool found = false;
  for (const std::uint64_t id : ids) {
    qsf::Entity* entity = findEntity(id);
    if (!entity) continue;
    looked = true;
    if (qsf::Component* component = entity->getComponentById(componentId)) {
      found = true;
      act(*entity, *component);
    } else {
      onMissing(*entity);
    }
  }
  if (looked && !found && hints::isOn()) hintMissingComponent(className);
}

/// The same over a list argument, of which it walks a private copy.
template <class OnMissing, class Act>
void forEachComponent(ScenarioHandler& handler, const Argument& list, const std::string& className,
                      OnMissing&& onMissing, Act&& act) {
  if (hints::isOn()) hintLiteralIds(list);
  forEachComponent(handler.ResolveEntityList(list), className, onMissing, act);
}

/// What to do about an entity without the component: nothing.
inline constexpr auto passOver = [](const qsf::Entity&) {};

/// What to do about an entity without the component: tell it in the words of that entry.
inline auto reportMissing(const char* entryName, const std::string& className) {
  return [entryName, &className](const qsf::Entity& entity) {
    logInfo(std::string(entryName) + ": cant find the component: " + className +
            " in your entity: " + std::to_string(entity.getId()));
  };
}

/// Runs a reflected access to a property that may fail: one that isn't there or a value that doesn't convert costs that
/// one access, without a message. Lists mix units of many kinds, and scripts rely on the walk going on.
template <class Access> void tryReflected(qsf::Component& component, const std::string& property, Access&& access) {
  try {
    access();
  } catch (const std::exception& fault) {
    if (hints::isOn()) hintFailedAccess(component, property, fault);
  }
}

/// The same, but `onFailure(text)` hears what went wrong.
template <class Access, class OnFailure> void tryReflected(Access&& access, OnFailure&& onFailure) {
  try {
    access();
  } catch (const std::exception& fault) {
    onFailure(std::string(fault.what()));
  }
}

/// "<entry>: entity: <id> with the component: <class> has the property <name> with the value <value>"
inline std::string describeValue(const char* entryName, const qsf::Entity& entity, const std::string& className,
                                 const std::string& property, const std::string& value) {
  return std::string(entryName) + ": entity: " + std::to_string(entity.getId()) + " with the component: " + className +
         " has the property " + property + " with the value " + value;
}

}
