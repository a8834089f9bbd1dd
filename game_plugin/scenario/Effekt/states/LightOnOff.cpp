#include "game_plugin/scenario/language/WordTable.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/VehicleWalk.h"

namespace script {

struct LightOnOffEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A blinker is switched on whatever ActivateLights says; BLINKEROFF alone switches it off.",
      "An entity that is no road vehicle is logged under the name LightsOnOffEffect.",
  };

  Argument entityList;
  Argument lightType;
  bool activateLights = true;
};

using RoadVehicle = em5::RoadVehicleComponent;
using SwitchLight = void (*)(RoadVehicle&, bool);

static constexpr Word<SwitchLight> LIGHTS[] = {
    {"BLUELIGHT", [](RoadVehicle& vehicle, bool on) { vehicle.setBlueLightState(on, true); }},
    {"HEADLIGHT", [](RoadVehicle& vehicle, bool on) { vehicle.setHeadLightState(on, true); }},
    {"BRAKELIGHT", [](RoadVehicle& vehicle, bool on) { vehicle.setBrakeLightState(on, true); }},
    {"BLINKERLEFT", [](RoadVehicle& vehicle, bool) { vehicle.setBlinkerState(RoadVehicle::BLINKER_LEFT, true); }},
    {"BLINKERRIGHT", [](RoadVehicle& vehicle, bool) { vehicle.setBlinkerState(RoadVehicle::BLINKER_RIGHT, true); }},
    {"BLINKERBOTH", [](RoadVehicle& vehicle, bool) { vehicle.setBlinkerState(RoadVehicle::BLINKER_BOTH, true); }},
    {"BLINKEROFF", [](RoadVehicle& vehicle, bool) { vehicle.setBlinkerState(RoadVehicle::BLINKER_OFF, true); }},
};

static void read(LightOnOffEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "empty_list", "EntityList", "Road vehicles");
  effect.lightType = in.words(2, "BLUELIGHT", "LightType", "Light to switch", wordsOf<LIGHTS>());
  effect.activateLights = in.flag(3, true, "ActivateLights", "true switches on, false off; blinkers don't mind");
}

static void run(const LightOnOffEffect& effect, ScenarioHandler& handler) {
  forEachRoadVehicle(handler, effect.entityList, "LightOnOffEffect", "LightsOnOffEffect", [&](RoadVehicle& vehicle) {
    if (const auto switchLight = lookUp(LIGHTS, handler.ResolveString(effect.lightType)))
      (*switchLight)(vehicle, effect.activateLights);
  });
}

EFFECT(LightOnOff, "Units", "Switches lights of road vehicles on or off")

}
