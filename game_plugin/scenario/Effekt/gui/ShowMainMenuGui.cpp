#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/EmergencyGui.h"
#include "em5/gui/MainMenuManager.h"

namespace script {

struct ShowMainMenuGuiEffect : DefaultEffect {
  bool show = false;
};

static void read(ShowMainMenuGuiEffect& effect, ParameterReader& in) {
  effect.show = in.flag(1, false, "Show", "true to show the main menu, false to hide it");
}

static void run(const ShowMainMenuGuiEffect& effect, ScenarioHandler&) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  em5::MainMenuManager* menu = gui ? gui->getMainMenuManager() : nullptr;
  if (!menu) return;
  if (!effect.show) {
    menu->hideGui();
    return;
  }
  menu->loadGui();
  if (qsf::GuiDocument* window = menu->getMainMenuWindow()) window->show();
}

EFFECT(ShowMainMenuGui, "GUI", "Shows or hides the MainMenu GUI.")

}
