#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/map/EntityHelper.h"

namespace script {

struct ObjectIsBurningCondition : DefaultCondition {
  Argument targetListIn;
  Argument targetListOut;
};

static void read(ObjectIsBurningCondition& condition, ParameterReader& in) {
  condition.targetListIn = in.list(1, "TargetList", "TargetList[in]", "Entities which are checked");
  condition.targetListOut = in.listOut(2, "EntityListOut", "TargetList[out]", "All entities which are burning");
}

static bool test(const ObjectIsBurningCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.targetListIn, condition.targetListOut,
                        [](qsf::Entity& entity) { return em5::EntityHelper(entity).isBurning(); });
}

CONDITION(ObjectIsBurning, "Units", "True if at least one entity is burning")

}
