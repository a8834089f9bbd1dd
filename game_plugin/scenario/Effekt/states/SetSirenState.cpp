#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/VehicleComponent.h"

namespace script {

struct SetSirenStateEffect : DefaultEffect {
  Argument entityList;
  bool sirenState = true;
  bool toggleSiren = false;
};

static void read(SetSirenStateEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Vehicles");
  effect.sirenState = in.flag(2, true, "SirenState", "Switches the siren on or off");
  effect.toggleSiren = in.flag(3, false, "ToggleSiren", "Switches it over instead, whatever SirenState says");
}

static void run(const SetSirenStateEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    if (auto* vehicle = entity.getComponent<em5::VehicleComponent>())
      vehicle->setSirenEnabled(effect.toggleSiren ? !vehicle->isSirenEnabled() : effect.sirenState);
  });
}

EFFECT(SetSirenState, "Units", "Switches the sirens of vehicles")

}
