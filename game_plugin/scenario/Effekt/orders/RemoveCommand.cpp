#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/commands/UnitCommands.h"

#include <algorithm>

namespace script {

struct RemoveCommandEffect : DefaultEffect {
  Argument entityListCaller;
  Argument commandName;
};

static void read(RemoveCommandEffect& effect, ParameterReader& in) {
  effect.entityListCaller = in.list(1, "no_list", "EntityList Caller", "Units that no longer understand it");
  effect.commandName = in.of(ParameterRole::COMMAND, 2, "no_Command", "CommandName",
                             "Class name of the command, like script::MouseClickDummyCommand");
}

static void run(const RemoveCommandEffect& effect, ScenarioHandler& handler) {
  changeCommands(handler, effect.entityListCaller, effect.commandName,
                 [](std::vector<std::uint32_t>& ids, std::uint32_t id) {
                   const auto found = std::ranges::find(ids, id);
                   if (found == ids.end()) return false;
                   ids.erase(found);
                   return true;
                 });
}

EFFECT(RemoveCommand, "Units", "Takes a command away from units")

}
