#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/map/Map.h"

namespace script {

struct SetSimulatingModeEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Each run tells the log \"do sth\", whether anything changes or not.",
  };

  bool enableSimulation = true;
};

static void read(SetSimulatingModeEffect& effect, ParameterReader& in) {
  effect.enableSimulation =
      in.flag(1, true, "Enable Simulation",
              "false holds the simulation, and with it scripts of the mode MAP_STARTUP_SIMULATION, true lets it go on");
}

static void run(const SetSimulatingModeEffect& effect, ScenarioHandler&) {
  qsf::Map& map = qsf::getMainMap();
  if (map.isSimulating() != effect.enableSimulation) map.setSimulatingMode(effect.enableSimulation);
  logInfo("do sth");
}

EFFECT(SetSimulatingMode, "General", "Holds the simulation of the map, or lets it go on")

}
