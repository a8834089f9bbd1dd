#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/DoorComponent.h"

namespace script {

struct OpenDoorEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A door that is moving goes on: only a closed one is opened, only an open one is closed.",
  };

  Argument entityList;
  bool openTheDoor = true;
};

static void read(OpenDoorEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Doors");
  effect.openTheDoor = in.flag(2, true, "OpenTheDoor", "true opens, false closes");
}

static void run(const OpenDoorEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    auto* door = entity.getComponent<em5::DoorComponent>();
    if (!door) return;
    if (effect.openTheDoor && door->getDoorState() == em5::DoorComponent::DOOR_CLOSED) door->openDoor();
    if (!effect.openTheDoor && door->getDoorState() == em5::DoorComponent::DOOR_OPEN) door->closeDoor();
  });
}

EFFECT(OpenDoor, "Units", "Opens or closes doors")

}
