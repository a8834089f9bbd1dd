#include "game_plugin/scenario/language/WordTable.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/DoorComponent.h"

namespace script {

struct DoorHasStateCondition : DefaultCondition {
  Argument entitiesToCheck;
  Argument checkedEntities;
  Argument doorState;
};

static constexpr Word<em5::DoorComponent::DoorState> DOOR_STATES[] = {
    {"DOOR_CLOSED", em5::DoorComponent::DOOR_CLOSED},
    {"DOOR_CLOSING", em5::DoorComponent::DOOR_CLOSING},
    {"DOOR_OPEN", em5::DoorComponent::DOOR_OPEN},
    {"DOOR_OPENING", em5::DoorComponent::DOOR_OPENING},
};

static void read(DoorHasStateCondition& condition, ParameterReader& in) {
  condition.entitiesToCheck = in.list(1, "EntityList", "EntitiesToCheck[in]", "Units which are checked");
  condition.checkedEntities =
      in.listOut(2, "EntityListOut", "CheckedEntities[out]", "All entities which have the door state");
  condition.doorState =
      in.words(3, "DOOR_OPEN", "Door_State", "one of the four states from the description", wordsOf<DOOR_STATES>());
}

static bool test(const DoorHasStateCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.entitiesToCheck, condition.checkedEntities, [&](const qsf::Entity& entity) {
    const auto* door = entity.getComponent<em5::DoorComponent>();
    return door && lookUp(DOOR_STATES, handler.ResolveString(condition.doorState)) == door->getDoorState();
  });
}

CONDITION(DoorHasState, "Units",
          "Checks if the door has the given state DOOR_OPEN,DOOR_CLOSED,DOOR_OPENING or DOOR_CLOSING")

}
