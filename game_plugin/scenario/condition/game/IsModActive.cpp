#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/plugin/Plugin.h"

#include <algorithm>

namespace script {

struct IsModActiveCondition : DefaultCondition {
  Argument modName;
};

static void read(IsModActiveCondition& condition, ParameterReader& in) {
  condition.modName = in.raw(1, "ModName", "ModName", "The name of the mod you are watching for");
}

static bool test(const IsModActiveCondition& condition, ScenarioHandler&) {
  em5::Plugin* game = em5::Plugin::getInstance();
  return game && std::ranges::any_of(game->getModSystem().getMods(), [&](const auto& mod) {
           return mod->isMounted() && mod->isEnabled() && condition.modName == mod->getName();
         });
}

CONDITION(
    IsModActive, "General",
    "Returns true if the given mod is active. Have a look into the Log to get the modname (in case you dont know)")

}
