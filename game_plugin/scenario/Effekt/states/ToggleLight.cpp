#include "game_plugin/scenario/language/WordTable.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/VehicleWalk.h"

#include "qsf/compositing/MaterialLightAnimationComponent.h"
#include "qsf/game/LightControllerComponent.h"

namespace script {

struct ToggleLightEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "With several vehicles, each switches the lamps of those before it in the list over once more: of two, the first "
      "ends as it was.",
      "BLINKEROFF, which LightOnOff knows, is unknown here.",
  };

  Argument entityList;
  Argument lightType;
};

using Lamp = qsf::game::LightControllerComponent;

/// Up to two types of lamps.
struct LampTypes {
  int first;
  int second = Lamp::NO_LIGHT;
};

static constexpr Word<LampTypes> LAMPS[] = {
    {"BLUELIGHT", {Lamp::BLUE_LIGHT}},       {"HEADLIGHT", {Lamp::HEAD_LIGHT}},
    {"BRAKELIGHT", {Lamp::BRAKE_LIGHT}},     {"BLINKERLEFT", {Lamp::BLINKER_LEFT}},
    {"BLINKERRIGHT", {Lamp::BLINKER_RIGHT}}, {"BLINKERBOTH", {Lamp::BLINKER_LEFT, Lamp::BLINKER_RIGHT}},
};

static void read(ToggleLightEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Road vehicles");
  effect.lightType = in.words(2, "BLUELIGHT", "LightType", "Lamps to switch over", wordsOf<LAMPS>());
}

static void toggle(std::uint64_t lampId) {
  qsf::Entity* lamp = findEntity(lampId);
  if (!lamp) return;
  bool shines = false;
  if (auto* controller = lamp->getComponent<Lamp>()) {
    shines = !controller->isActive();
    controller->setActive(shines);
  }
  if (auto* glow = lamp->getComponent<qsf::compositing::MaterialLightAnimationComponent>()) glow->setActive(shines);
}

static void run(const ToggleLightEffect& effect, ScenarioHandler& handler) {
  // Kept: the lamps of all vehicles so far, which scripts with several vehicles see flicker.
  std::vector<std::uint64_t> lampIds;
  const auto toggleLampsOf = [&](const em5::RoadVehicleComponent& vehicle) {
    const std::string& type = handler.ResolveString(effect.lightType);
    if (const auto types = lookUp(LAMPS, type)) {
      vehicle.getVehicleLightIdsByType(types->first, lampIds);
      if (types->second != Lamp::NO_LIGHT) vehicle.getVehicleLightIdsByType(types->second, lampIds);
    } else {
      logError("ToggleLightEffect Mode " + type + "was not found");
    }
    for (const std::uint64_t id : lampIds)
      toggle(id);
  };
  forEachRoadVehicle(handler, effect.entityList, "ToggleLightEffect", "ToggleLightEffect", toggleLampsOf);
}

EFFECT(ToggleLight, "Units", "Switches lamps of road vehicles over")

}
