#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct GetSizeOfEntityListEffect : DefaultEffect {
  Argument entityList;
  Argument countVariable;
};

static void read(GetSizeOfEntityListEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Ids, or name of a list");
  effect.countVariable = in.variableOut(2, "no_var", "EntityCountVar", "Name of the variable that gets the size");
}

static void run(const GetSizeOfEntityListEffect& effect, ScenarioHandler& handler) {
  handler.SetFloatVariable(effect.countVariable, static_cast<float>(handler.getEntityListSize(effect.entityList)));
}

EFFECT(GetSizeOfEntityList, "EntityLists", "Sets a variable to the number of entities of a list")

}
