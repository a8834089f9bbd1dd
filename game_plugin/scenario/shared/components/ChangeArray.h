#pragma once
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/ArrayAccess.h"

namespace script {

/// Calls `change(array, object)` for each entity of the list whose component has that property as an array that can
/// grow and shrink. A property of another kind is passed over in silence; what else is wrong is logged.
template <class Change>
void changeArrays(ScenarioHandler& handler, const Argument& list, const std::string& className,
                  const std::string& property, Change&& change) {
  // Adding and removing speak of adding, both: scripts' authors search their logs for these words.
  forEachComponent(handler, list, className, reportMissing("AddEntryToPropertyArrayEffect", className),
                   [&](const qsf::Entity&, qsf::Component& component) {
                     tryReflected(
                         [&] {
                           const camp::UserObject object = reflect(component);
                           const camp::ArrayProperty* array = findArrayProperty(object, property);
                           if (!array) return;
                           if (array->dynamic())
                             change(*array, object);
                           else
                             logInfo("the given array is not dynamic " + className + " " + property);
                         },
                         logInfo);
                   });
}

}
