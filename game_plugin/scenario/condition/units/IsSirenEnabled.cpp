#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

#include "em5/component/VehicleComponent.h"

namespace script {

struct IsSirenEnabledCondition : DefaultCondition {
  Argument entitiesToCheck;
  Argument checkedEntities;
};

static void read(IsSirenEnabledCondition& condition, const Tokens& tokens) {
  condition.entitiesToCheck =
      readStringParameter(tokens, 1, "EntityList", "EntitiesToCheck[in]", "Units which are checked");
  condition.checkedEntities =
      readStringParameter(tokens, 2, "EntityListOut", "CheckedEntities[out]", "All vehicles whose siren is enabled");
}

static bool test(const IsSirenEnabledCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.entitiesToCheck, condition.checkedEntities, [](const qsf::Entity& entity) {
    const auto* vehicle = entity.getComponent<em5::VehicleComponent>();
    return vehicle && vehicle->isSirenEnabled();
  });
}

CONDITION(IsSirenEnabled, "Units", "True if the siren of at least one vehicle is enabled")

}
