#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

#include "em5/component/DoorComponent.h"

namespace script {

struct DoorHasStateCondition : DefaultCondition {
  Argument entitiesToCheck;
  Argument checkedEntities;
  Argument doorState;
};

static void read(DoorHasStateCondition& condition, const Tokens& tokens) {
  condition.entitiesToCheck =
      readStringParameter(tokens, 1, "EntityList", "EntitiesToCheck[in]", "Units which are checked");
  condition.checkedEntities =
      readStringParameter(tokens, 2, "EntityListOut", "CheckedEntities[out]", "All entities which have the door state");
  condition.doorState =
      readStringParameter(tokens, 3, "DOOR_OPEN", "Door_State", "one of the four states from the description");
}

static std::string_view nameOf(em5::DoorComponent::DoorState state) {
  switch (state) {
  case em5::DoorComponent::DOOR_CLOSED:
    return "DOOR_CLOSED";
  case em5::DoorComponent::DOOR_CLOSING:
    return "DOOR_CLOSING";
  case em5::DoorComponent::DOOR_OPEN:
    return "DOOR_OPEN";
  case em5::DoorComponent::DOOR_OPENING:
    return "DOOR_OPENING";
  }
  return {};
}

static bool test(const DoorHasStateCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.entitiesToCheck, condition.checkedEntities, [&](const qsf::Entity& entity) {
    const auto* door = entity.getComponent<em5::DoorComponent>();
    if (!door) return false;
    const std::string_view state = nameOf(door->getDoorState());
    return !state.empty() && handler.ResolveString(condition.doorState) == state;
  });
}

CONDITION(DoorHasState, "Units",
          "Checks if the door has the given state DOOR_OPEN,DOOR_CLOSED,DOOR_OPENING or DOOR_CLOSING")

}
