#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct GetSizeOfEntityListEffect : DefaultEffect {
  Argument entityList;
  Argument countVariable;
};

static void read(GetSizeOfEntityListEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Ids, or name of a list");
  effect.countVariable =
      readStringParameter(tokens, 2, "no_var", "EntityCountVar", "Name of the variable that gets the size");
}

static void run(const GetSizeOfEntityListEffect& effect, ScenarioHandler& handler) {
  handler.SetFloatVariable(effect.countVariable, static_cast<float>(handler.GetEntityListSize(effect.entityList)));
}

EFFECT(GetSizeOfEntityList, "EntityLists", "Sets a variable to the number of entities of a list")

}
