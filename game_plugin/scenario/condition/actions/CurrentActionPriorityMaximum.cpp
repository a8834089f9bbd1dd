#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/action/ActionComponent.h"

namespace script {

struct CurrentActionPriorityMaximumCondition : DefaultCondition {
  Argument entityList;
  Argument compareValue;
  Argument entityListOut;
};

static void read(CurrentActionPriorityMaximumCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "EntitiesToCheck", "EntityList", "EntityList which should be checked");
  condition.entityListOut = in.listOut(
      2, "no_list", "EntityListOut",
      "All the entities which passed the checks are written to this list. Notice that the list is cleared before. BUT "
      "EntityList and EntityList[out] can be the same - this will remove units that dont match this criteria");
  condition.compareValue = in.number(
      3, "1", "CompareValue",
      "If it is higher then this value, the entity will not pass the check.<br>200->blocked action these shouldnt be "
      "interupted<br>120->is a good value as it is higher then Move and TurnUnit action");
}

static bool test(const CurrentActionPriorityMaximumCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.entityList, condition.entityListOut, [&](const qsf::Entity& entity) {
    const auto* actions = entity.getComponent<qsf::ActionComponent>();
    if (!actions) return false;
    if (!actions->getCurrentAction()) return true;
    return !(static_cast<float>(actions->getCurrentPriority()) > handler.ResolveFloat(condition.compareValue));
  });
}

CONDITION(CurrentActionPriorityMaximum, "General",
          "True if at least entity has not a current action with a higher value")

}
