#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/commands/UnitCommands.h"

#include <algorithm>

namespace script {

struct AddCommandEffect : DefaultEffect {
  Argument entityListCaller;
  Argument commandName;
};

static void read(AddCommandEffect& effect, ParameterReader& in) {
  effect.entityListCaller = in.list(1, "no_list", "EntityList Caller", "Units that understand it from then on");
  effect.commandName = in.of(ParameterRole::COMMAND, 2, "no_Command", "CommandName",
                             "Class name of the command, like script::MouseClickDummyCommand");
}

static void run(const AddCommandEffect& effect, ScenarioHandler& handler) {
  changeCommands(handler, effect.entityListCaller, effect.commandName,
                 [](std::vector<std::uint32_t>& ids, std::uint32_t id) {
                   if (std::ranges::find(ids, id) != ids.end()) return false;
                   ids.insert(ids.begin(), id);
                   return true;
                 });
}

EFFECT(AddCommand, "Units", "Lets units understand a further command, as their first one")

}
