#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/Placeholder.h"

#include "qsf/action/ActionComponent.h"

namespace script {

struct IsActionInPlanCondition : DefaultCondition {
  Argument entityList;
  Argument actionName;
};

static void read(IsActionInPlanCondition& condition, const Tokens& tokens) {
  condition.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "");
  condition.actionName = readStringParameter(tokens, 2, "no_action", "ActionName", "");
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

/// Kept: actions are counted, not entities. Two matches in one plan make up for an entity with none, and an empty list
/// holds.
static bool test(const IsActionInPlanCondition& condition, ScenarioHandler& handler) {
  if (isLeftAt(condition.entityList.text(), "no_list", "IsActionInPlanCondition::EntityList was not found"))
    return false;
  const std::size_t size = handler.GetEntityListSize(condition.entityList);
  const std::string& actionName = handler.ResolveString(condition.actionName);
  std::size_t count = 0;
  if (!isLeftAt(actionName, "no_action", "IsActionInPlanCondition::Action was not found"))
    count = countActions(handler, condition.entityList, qsf::StringHash(actionName));
  return count == size;
}

CONDITION(IsActionInPlan, "Units", "Returns true if all entities have your action in their actionPlan")

}
