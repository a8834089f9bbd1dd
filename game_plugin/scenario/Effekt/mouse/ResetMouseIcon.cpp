#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/EmergencyGui.h"

namespace script {

struct ResetMouseIconEffect : DefaultEffect {};

static void read(ResetMouseIconEffect&, ParameterReader&) {}

static void run(const ResetMouseIconEffect&, ScenarioHandler&) {
  if (const qsf::UniqueInstance<em5::EmergencyGui> gui; gui) gui->resetMouseCursor();
}

EFFECT(ResetMouseIcon, "GUI", "Gives the mouse its usual cursor back")

}
