#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/Placeholder.h"

#include "qsf/component/MovableComponent.h"

namespace script {

struct IsVehicleMovingCondition : DefaultCondition {
  Argument entityList;
};

static void read(IsVehicleMovingCondition& condition, const Tokens& tokens) {
  condition.entityList =
      readStringParameter(tokens, 1, "no_list", "EntityList", "The name of the EntityList, which should be used");
}

/// Kept: holds for an empty list, and with the placeholder as long as the list of that name is empty.
static bool test(const IsVehicleMovingCondition& condition, ScenarioHandler& handler) {
  std::size_t moving = 0;
  if (!isLeftAt(condition.entityList.text(), "no_list", "IsVehicleMovingCondition::EntityList was not found"))
    forEachEntity(handler, condition.entityList, [&](const qsf::Entity& entity) {
      const auto* movable = entity.getComponent<qsf::MovableComponent>();
      if (movable && movable->isMoving()) ++moving;
    });
  return moving == handler.GetEntityListSize(condition.entityList);
}

CONDITION(IsVehicleMoving, "Units", "Returns true if all entities are moving")

}
