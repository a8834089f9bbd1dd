#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/game/UnitPoolHelper.h"

namespace script {

struct SetUnitPoolEffect : DefaultEffect {
  Argument unitPool;
};

static void read(SetUnitPoolEffect& effect, ParameterReader& in) {
  effect.unitPool = in.text(1, "tutorial_unitpool", "UnitPool", "Name of the unit pool");
}

static void run(const SetUnitPoolEffect& effect, ScenarioHandler& handler) {
  em5::UnitPoolHelper().setUnitPoolForLocalPlayer(handler.ResolveString(effect.unitPool));
}

EFFECT(SetUnitPool, "Units", "Gives the local player another unit pool")

}
