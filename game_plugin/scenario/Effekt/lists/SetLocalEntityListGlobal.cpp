#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SetLocalEntityListGlobalEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A target without the global mark is a local list, and one that has the mark gets a second one: the reverse of "
      "what SetLocalVariableGlobal does.",
  };

  Argument localList;
  Argument globalList;
};

static void read(SetLocalEntityListGlobalEffect& effect, ParameterReader& in) {
  effect.localList = in.listInOut(1, "no_list", "LocalEntiyList", "Name of the local list");
  effect.globalList = in.listOut(2, "no_listG", "GlobalEntiyList", "Target; by default the global list of that name");
}

static std::string targetName(const SetLocalEntityListGlobalEffect& effect, const ScenarioHandler& handler) {
  if (effect.globalList == "no_listG") return handler.globalMark() + effect.localList.text();
  if (!effect.globalList.info().isGlobal) return effect.globalList.text();
  return handler.globalMark() + effect.globalList.text();
}

static void run(const SetLocalEntityListGlobalEffect& effect, ScenarioHandler& handler) {
  if (effect.localList == "no_list") {
    logError("SetLocalEntityListGlobalEffect::LocalEntityList not found");
    return;
  }
  const std::string target = targetName(effect, handler);
  for (const std::uint64_t id : handler.ResolveEntityList(effect.localList))
    handler.AddToEntityList(target, id);
  handler.removeLocalEntityList(effect.localList.text());
}

EFFECT(SetLocalEntityListGlobal, "EntityLists", "Copies a local list to a global one and deletes the local list")

}
