#include "game_plugin/gui/ScenarioBasicGui.h"
#include "game_plugin/scenario/program/ParameterReader.h"

#include "em5/gui/EmergencyGui.h"

namespace script {

struct ShowLetterBoxesEffect : DefaultEffect {
  bool enable = false;
};

static void read(ShowLetterBoxesEffect& effect, ParameterReader& in) {
  effect.enable =
      in.flag(1, false, "Enable", "true-> black bars come up, and the game's windows go\nfalse-> back again");
}

static void run(const ShowLetterBoxesEffect& effect, ScenarioHandler&) {
  ScenarioBasicGui* gui = ScenarioBasicGui::get();
  if (!gui) return;
  const qsf::UniqueInstance<em5::EmergencyGui> game;
  em5::IngameHud* hud = game ? game->getIngameHud() : nullptr;
  if (hud && effect.enable) hud->hideGui();
  if (hud && !effect.enable) hud->showGui();
  gui->ShowLetterBox(effect.enable);
}

EFFECT(ShowLetterBoxes, "GUI",
       "Shows or hides black bars above and below, as in a film. Hides the game's windows meanwhile")

}
