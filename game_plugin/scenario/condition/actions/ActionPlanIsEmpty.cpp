#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/action/ActionComponent.h"

namespace script {

struct ActionPlanIsEmptyCondition : DefaultCondition {
  Argument entityList;
  Argument entityListOut;
};

static void read(ActionPlanIsEmptyCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "", "EntityList", "Units that shall be checked");
  condition.entityListOut = in.listOut(2, "", "EntityListOut", "Units that shall be checked");
}

static bool test(const ActionPlanIsEmptyCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.entityList, condition.entityListOut, [](const qsf::Entity& entity) {
    const auto* actions = entity.getComponent<qsf::ActionComponent>();
    return actions && !actions->getCurrentAction();
  });
}

CONDITION(ActionPlanIsEmpty, "Actions",
          "Checks if the ActionPlan of the selected unit(s) is empty. Will return true if it is the case for at least "
          "one unit and outputs a list of entities that have a clean actionplan")

}
