#include "game_plugin/scenario/program/ParameterReader.h"

#include "em5/gui/EmergencyGui.h"

namespace script {

struct ShowDebuggingGuiEffect : DefaultEffect {
  bool visible = true;
};

static void read(ShowDebuggingGuiEffect& effect, ParameterReader& in) {
  effect.visible = in.flag(1, true, "", "true-> gui will be shown\nfalse->gui will be hidden");
}

static void run(const ShowDebuggingGuiEffect& effect, ScenarioHandler& /*handler*/) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (gui && gui->getIngameHud()) gui->getIngameHud()->getDebugGuiWindow()->setVisible(effect.visible);
}

EFFECT(ShowDebuggingGui, "GUI", "Enables or disables the debugging gui. Usefull for events or to test some stuff out.")

}
