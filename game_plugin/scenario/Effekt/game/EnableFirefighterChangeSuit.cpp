#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/program/ParameterReader.h"

namespace script {

struct EnableFirefighterChangeSuitEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A firefighter begins to change its suit, and stops at once: the action is taken off its plan again.",
  };

  bool enable = false;
};

static void read(EnableFirefighterChangeSuitEffect& effect, ParameterReader& in) {
  effect.enable =
      in.flag(1, false, "Enable", "false keeps firefighters in their suits until the game ends, true lets them change");
}

static void run(const EnableFirefighterChangeSuitEffect& effect, ScenarioHandler&) {
  MapScriptManager* manager = MapScriptManager::get();
  if (!manager) return;
  if (effect.enable)
    manager->getSuitChangeGuard().switchOff();
  else
    manager->getSuitChangeGuard().switchOn();
}

EFFECT(EnableFirefighterChangeSuit, "Misc", "Keeps firefighters from changing their suits, or lets them")

}
