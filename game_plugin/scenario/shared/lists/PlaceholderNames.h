#pragma once
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

/// Whether the two effects that look for entities by name do anything. Kept: the tests stand the wrong way round, so
/// both effects work with their placeholders only. Both speak of GetAllEntitiesWithName, which authors search for.
inline bool areNameParametersAtPlaceholders(ScenarioHandler& handler, const Argument& list, const Argument& name) {
  if (list != "no_list") {
    logError("GetAllEntitiesWithNameEffect::EntityList was not found");
    return false;
  }
  if (handler.ResolveString(name) != "no_name") {
    logError("GetAllEntitiesWithNameEffect::EntityName was not found");
    return false;
  }
  return true;
}

}
