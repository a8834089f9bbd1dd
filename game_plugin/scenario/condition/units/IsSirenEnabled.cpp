#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/VehicleComponent.h"

namespace script {

struct IsSirenEnabledCondition : DefaultCondition {
  Argument entitiesToCheck;
  Argument checkedEntities;
};

static void read(IsSirenEnabledCondition& condition, ParameterReader& in) {
  condition.entitiesToCheck = in.list(1, "EntityList", "EntitiesToCheck[in]", "Units which are checked");
  condition.checkedEntities =
      in.listOut(2, "EntityListOut", "CheckedEntities[out]", "All vehicles whose siren is enabled");
}

static bool test(const IsSirenEnabledCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.entitiesToCheck, condition.checkedEntities, [](const qsf::Entity& entity) {
    const auto* vehicle = entity.getComponent<em5::VehicleComponent>();
    return vehicle && vehicle->isSirenEnabled();
  });
}

CONDITION(IsSirenEnabled, "Units", "True if the siren of at least one vehicle is enabled")

}
