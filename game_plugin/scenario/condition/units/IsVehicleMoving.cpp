#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/component/MovableComponent.h"

namespace script {

struct IsVehicleMovingCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "It holds for an empty list, and with EntityList left at no_list as long as the list of that name is empty.",
  };

  Argument entityList;
};

static void read(IsVehicleMovingCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "no_list", "EntityList", "The name of the EntityList, which should be used");
}

static bool test(const IsVehicleMovingCondition& condition, ScenarioHandler& handler) {
  std::size_t moving = 0;
  if (!isLeftAt(condition.entityList.text(), "no_list", "IsVehicleMovingCondition::EntityList was not found"))
    forEachEntity(handler, condition.entityList, [&](const qsf::Entity& entity) {
      const auto* movable = entity.getComponent<qsf::MovableComponent>();
      if (movable && movable->isMoving()) ++moving;
    });
  return moving == handler.getEntityListSize(condition.entityList);
}

CONDITION(IsVehicleMoving, "Units", "Returns true if all entities are moving")

}
