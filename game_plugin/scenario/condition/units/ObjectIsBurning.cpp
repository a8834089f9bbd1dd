#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

#include "em5/map/EntityHelper.h"

namespace script {

struct ObjectIsBurningCondition : DefaultCondition {
  Argument targetListIn;
  Argument targetListOut;
};

static void read(ObjectIsBurningCondition& condition, const Tokens& tokens) {
  condition.targetListIn = readStringParameter(tokens, 1, "TargetList", "TargetList[in]", "Entities which are checked");
  condition.targetListOut =
      readStringParameter(tokens, 2, "EntityListOut", "TargetList[out]", "All entities which are burning");
}

static bool test(const ObjectIsBurningCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.targetListIn, condition.targetListOut,
                        [](qsf::Entity& entity) { return em5::EntityHelper(entity).isBurning(); });
}

CONDITION(ObjectIsBurning, "Units", "True if at least one entity is burning")

}
