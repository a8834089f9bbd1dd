#include "game_plugin/scenario/program/ParameterReader.h"

#include "em5/settings/GameDebugGroup.h"

namespace script {

struct EnableFreeplayEventsEffect : DefaultEffect {
  bool enable = true;
};

static void read(EnableFreeplayEventsEffect& effect, ParameterReader& in) {
  effect.enable = in.flag(1, true, "Enable", "false stops the start of further freeplay events");
}

static void run(const EnableFreeplayEventsEffect& effect, ScenarioHandler& /*handler*/) {
  if (const qsf::UniqueInstance<em5::GameDebugGroup> group; group) group->setActiveFreeplay(effect.enable);
}

EFFECT(EnableFreeplayEvents, "Events", "Switches the freeplay events of the game on or off")

}
