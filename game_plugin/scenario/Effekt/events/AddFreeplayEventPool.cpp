#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"

#include "em5/freeplay/FreeplaySystem.h"
#include "em5/plugin/Plugin.h"

namespace script {

struct AddFreeplayEventPoolEffect : DefaultEffect {
  Argument eventPool;
};

static void read(AddFreeplayEventPoolEffect& effect, ParameterReader& in) {
  effect.eventPool = in.raw(1, "em5/em5_eventpool/worldevents/MY_CUSTOM_WORLDEVENTPOOL", "Evenpool",
                            "Local asset name of the event pool");
}

static void run(const AddFreeplayEventPoolEffect& effect, ScenarioHandler& /*handler*/) {
  em5::Plugin* game = em5::Plugin::getInstance();
  if (game && !game->getFreeplaySystem().addEventPoolsByName(effect.eventPool))
    logInfo("Add eventpools by name failed to add your pool: " + effect.eventPool.text());
}

EFFECT(AddFreeplayEventPool, "Events", "Adds an event pool to the freeplay game")

}
