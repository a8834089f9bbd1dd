#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/EmergencyGui.h"

namespace script {

struct ShowMouseCursorEffect : DefaultEffect {
  bool show = false;
};

static void read(ShowMouseCursorEffect& effect, ParameterReader& in) {
  effect.show = in.flag(1, false, "Show", "true to show the mouse cursor, false to hide it");
}

static void run(const ShowMouseCursorEffect& effect, ScenarioHandler&) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (gui) gui->showMouseCursor(effect.show);
}

EFFECT(ShowMouseCursor, "GUI", "Shows or hides the mouse cursor")

}
