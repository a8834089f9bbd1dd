#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/action/ActionComponent.h"

namespace script {

struct IsCurrentActionCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "It holds for an empty list.",
  };

  Argument entityList;
  Argument actionName;
};

static void read(IsCurrentActionCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "no_list", "EntityList", "The name of the EntityList, which should be used");
  condition.actionName = in.of(ParameterRole::ACTION, 2, "no_action", "ActionName", "The action you want to check");
}

static bool test(const IsCurrentActionCondition& condition, ScenarioHandler& handler) {
  if (isLeftAt(condition.entityList.text(), "no_list", "IsCurrentActionCondition::EntityList was not found"))
    return false;
  const std::size_t size = handler.getEntityListSize(condition.entityList);
  const std::string& actionName = handler.ResolveString(condition.actionName);
  std::size_t count = 0;
  if (!isLeftAt(actionName, "no_action", "IsCurrentActionCondition::Action was not found")) {
    const qsf::StringHash typeId(actionName);
    forEachEntity(handler, condition.entityList, [&](const qsf::Entity& entity) {
      const auto* actions = entity.getComponent<qsf::ActionComponent>();
      const qsf::Action* current = actions ? actions->getCurrentAction() : nullptr;
      if (current && current->getTypeId() == typeId) ++count;
    });
  }
  return count == size;
}

CONDITION(IsCurrentAction, "Units", "Return true if all entities have a certain currentAction")

}
