#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct ClearEntityIdListEffect : DefaultEffect {
  Argument entityList;
  bool deleteList = false;
};

static void read(ClearEntityIdListEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Name of the list");
  effect.deleteList = readBoolParameter(tokens, 2, false, "Delete the list", "Removes the list itself, too");
}

static void run(const ClearEntityIdListEffect& effect, ScenarioHandler& handler) {
  handler.ClearEntityList(effect.entityList, effect.deleteList);
}

EFFECT(ClearEntityIdList, "EntityLists", "Empties a list, or removes it")

}
