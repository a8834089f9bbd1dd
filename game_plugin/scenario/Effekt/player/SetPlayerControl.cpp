#include "game_plugin/scenario/program/ParameterReader.h"

#include "em5/gui/EmergencyGui.h"
#include "em5/settings/GameSettingsGroup.h"

namespace script {

struct SetPlayerControlEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "HideMenu works against its name: 1 shows the game's windows, 0 hides them.",
  };

  int hideMenu = -1;
  int inputBlocked = -1;
  int moveBlocked = -1;
  int rotateBlocked = -1;
  int showCursor = -1;
  int zoomBlocked = -1;
};

static void read(SetPlayerControlEffect& effect, ParameterReader& in) {
  effect.hideMenu = in.integer(1, -1, "HideMenu", "1-> the menu is hidden\n0-> it is shown\n-1-> as it is");
  effect.inputBlocked = in.integer(2, -1, "Input Blocked", "1-> the player can't give orders\n0-> can\n-1-> as it is");
  effect.moveBlocked =
      in.integer(3, -1, "InputCameraMoveBlocked", "1-> the camera can't be moved\n0-> can\n-1-> as it is");
  effect.rotateBlocked =
      in.integer(4, -1, "Disable Camera Control", "1-> the camera can't be turned\n0-> can\n-1-> as it is");
  effect.showCursor = in.integer(5, -1, "Show Cursor", "1-> the cursor is shown\n0-> it is hidden\n-1-> as it is");
  effect.zoomBlocked =
      in.integer(6, -1, "InputCameraZoomBlocked", "1-> the camera can't be zoomed\n0-> can\n-1-> as it is");
}

static void apply(int wanted, auto&& set) {
  if (wanted == 0 || wanted == 1) set(wanted == 1);
}

static void run(const SetPlayerControlEffect& effect, ScenarioHandler&) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  const qsf::UniqueInstance<em5::GameSettingsGroup> settings;
  if (!gui || !settings) return;
  apply(effect.inputBlocked, [&](bool on) { settings->setInputBlocked(on); });
  apply(effect.moveBlocked, [&](bool on) { settings->setInputCameraMoveBlocked(on); });
  apply(effect.rotateBlocked, [&](bool on) { settings->setInputCameraRotateBlocked(on); });
  apply(effect.zoomBlocked, [&](bool on) { settings->setInputCameraZoomBlocked(on); });
  // Kept, against the parameter's name: scripts write 1 to have the menu back.
  apply(effect.hideMenu, [&](bool on) { on ? gui->showIngameHud() : gui->hideIngameHud(); });
  apply(effect.showCursor, [&](bool on) { gui->showMouseCursor(on); });
}

EFFECT(SetPlayerControl, "GUI", "Takes single kinds of control from the player, or gives them back")

}
