#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ClearEntityIdListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Delete the list doesn't remove a global list: the script's own list at the same place in the order of first use "
      "is removed instead, and if there is none, the script's tick ends with a fault.",
  };

  Argument entityList;
  bool deleteList = false;
};

static void read(ClearEntityIdListEffect& effect, ParameterReader& in) {
  effect.entityList = in.listOut(1, "no_list", "EntityList", "Name of the list");
  effect.deleteList = in.flag(2, false, "Delete the list", "Removes the list itself, too");
}

static void run(const ClearEntityIdListEffect& effect, ScenarioHandler& handler) {
  handler.ClearEntityList(effect.entityList, effect.deleteList);
}

EFFECT(ClearEntityIdList, "EntityLists", "Empties a list, or removes it")

}
