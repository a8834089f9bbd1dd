#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/VehicleComponent.h"

namespace script {

struct CanBeTowedCondition : DefaultCondition {
  Argument targetListIn;
  Argument targetListOut;
};

static void read(CanBeTowedCondition& condition, ParameterReader& in) {
  condition.targetListIn = in.list(1, "TargetList", "TargetList[in]", "Units which are checked");
  condition.targetListOut = in.listOut(2, "EntityListOut", "TargetList[out]", "All vehicles which can be towed");
}

static bool test(const CanBeTowedCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.targetListIn, condition.targetListOut, [](const qsf::Entity& entity) {
    const auto* vehicle = entity.getComponent<em5::VehicleComponent>();
    return vehicle && vehicle->getCanBeTowed();
  });
}

CONDITION(CanBeTowed, "Units", "True if at least one vehicle can be towed")

}
