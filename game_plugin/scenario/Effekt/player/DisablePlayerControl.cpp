#include "game_plugin/scenario/program/ParameterReader.h"

#include "em5/gui/EmergencyGui.h"
#include "em5/settings/GameSettingsGroup.h"

namespace script {

struct DisablePlayerControlEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The zoom of the camera stays in the player's hands.",
  };

  bool enable = false;
};

static void read(DisablePlayerControlEffect& effect, ParameterReader& in) {
  effect.enable =
      in.flag(1, false, "Enable", "true-> the player has no control, no cursor and no windows\nfalse-> back again");
}

static void run(const DisablePlayerControlEffect& effect, ScenarioHandler&) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  const qsf::UniqueInstance<em5::GameSettingsGroup> settings;
  if (!gui || !settings) return;
  settings->setInputBlocked(effect.enable);
  settings->setInputCameraMoveBlocked(effect.enable);
  settings->setInputCameraRotateBlocked(effect.enable);
  if (effect.enable) {
    gui->hideIngameHud();
    gui->showMouseCursor(false);
  } else {
    gui->showMouseCursor(true);
    gui->showIngameHud();
  }
}

EFFECT(DisablePlayerControl, "GUI",
       "Takes input, camera, cursor and the game's windows from the player, or gives them back")

}
