#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/commands/UnitCommands.h"

namespace script {

struct LogCommandsEffect : DefaultEffect {
  Argument entityList;
};

static void read(LogCommandsEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Units whose commands are logged");
  in.unused(2, "UsedListName", "OrderInfo", "Without influence");
  in.unused(3, "UnUsedListName", "PlayerId", "Without influence");
}

static void run(const LogCommandsEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [](qsf::Entity& entity) {
    const auto* commandable = entity.getComponent<em5::CommandableComponent>();
    if (!commandable) return;
    for (const std::uint32_t id : commandable->getCommandIds()) {
      const qsf::game::Command* command = findCommand(id);
      logInfo(command ? "valid " + command->getName() : "invalid " + std::to_string(id));
    }
  });
}

EFFECT(LogCommands, "Units", "Logs the commands that units understand")

}
