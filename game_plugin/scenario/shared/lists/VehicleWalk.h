#pragma once
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/component/RoadVehicleComponent.h"

namespace script {

/// Calls `act(vehicle)` for the road vehicles of a list argument, and logs the ids that have no entity or are none:
/// each entry speaks of the two in names of its own.
template <class Act>
void forEachRoadVehicle(ScenarioHandler& handler, const Argument& list, const char* missingEntityPrefix,
                        const char* missingComponentPrefix, Act&& act) {
  for (const std::uint64_t id : handler.ResolveEntityList(list)) {
    qsf::Entity* entity = findEntity(id);
    auto* vehicle = entity ? entity->getComponent<em5::RoadVehicleComponent>() : nullptr;
    if (!entity)
      logError(std::string(missingEntityPrefix) + "::Entity " + std::to_string(id) + " was not found");
    else if (!vehicle)
      logError(std::string(missingComponentPrefix) + "::RoadVehicleComponent from entity " + std::to_string(id) +
               " was not found");
    else
      act(*vehicle);
  }
}

}
