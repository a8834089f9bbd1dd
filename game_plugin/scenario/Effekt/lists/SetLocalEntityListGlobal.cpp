#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct SetLocalEntityListGlobalEffect : DefaultEffect {
  Argument localList;
  Argument globalList;
};

static void read(SetLocalEntityListGlobalEffect& effect, const Tokens& tokens) {
  effect.localList = readStringParameter(tokens, 1, "no_list", "LocalEntiyList", "Name of the local list");
  effect.globalList =
      readStringParameter(tokens, 2, "no_listG", "GlobalEntiyList", "Target; by default the global list of that name");
}

/// Kept: a name without the global mark stays local, and one that has it gets a second mark. It is the reverse of what
/// SetLocalVariableGlobal does, and scripts read the lists under these names.
static std::string targetName(const SetLocalEntityListGlobalEffect& effect, const ScenarioHandler& handler) {
  if (effect.globalList == "no_listG") return handler.GlobalMark() + effect.localList.text();
  if (!effect.globalList.info().isGlobal) return effect.globalList.text();
  return handler.GlobalMark() + effect.globalList.text();
}

static void run(const SetLocalEntityListGlobalEffect& effect, ScenarioHandler& handler) {
  if (effect.localList == "no_list") {
    logError("SetLocalEntityListGlobalEffect::LocalEntityList not found");
    return;
  }
  const std::string target = targetName(effect, handler);
  for (const std::uint64_t id : handler.ResolveEntityList(effect.localList))
    handler.AddToEntityList(target, id);
  handler.RemoveLocalEntityList(effect.localList.text());
}

EFFECT(SetLocalEntityListGlobal, "EntityLists", "Copies a local list to a global one and deletes the local list")

}
