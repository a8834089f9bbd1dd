#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/action/ActionComponent.h"

#include <algorithm>

namespace script {

struct IsActionInPlanCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "Actions are counted, not entities: two of that kind in one entity's plan make up for an entity that has none.",
      "It holds for an empty list.",
  };

  Argument entityList;
  Argument actionName;
};

static void read(IsActionInPlanCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "no_list", "EntityList", "");
  condition.actionName = in.of(ParameterRole::ACTION, 2, "no_action", "ActionName", "");
}

static std::size_t countActions(ScenarioHandler& handler, const Argument& list, qsf::StringHash typeId) {
  std::size_t count = 0;
  forEachEntity(handler, list, [&](const qsf::Entity& entity) {
    if (const auto* actions = entity.getComponent<qsf::ActionComponent>())
      count += static_cast<std::size_t>(std::ranges::count_if(
          actions->getPlan().getActions(), [=](const qsf::Action* action) { return action->getTypeId() == typeId; }));
  });
  return count;
}

static bool test(const IsActionInPlanCondition& condition, ScenarioHandler& handler) {
  if (isLeftAt(condition.entityList.text(), "no_list", "IsActionInPlanCondition::EntityList was not found"))
    return false;
  const std::size_t size = handler.getEntityListSize(condition.entityList);
  const std::string& actionName = handler.ResolveString(condition.actionName);
  std::size_t count = 0;
  if (!isLeftAt(actionName, "no_action", "IsActionInPlanCondition::Action was not found"))
    count = countActions(handler, condition.entityList, qsf::StringHash(actionName));
  return count == size;
}

CONDITION(IsActionInPlan, "Units", "Returns true if all entities have your action in their actionPlan")

}
