#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/commands/UnitCommands.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/command/CommandContext.h"

namespace script {

struct ExecuteCommandEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The default position, and one that can't be read, is the place 0 0 0; only an empty one is none.",
      "The variable is set before the command does its work.",
      "The command is checked for the first caller alone.",
  };

  Argument commandName;
  Argument entityListCaller;
  Argument entityListTarget;
  Argument position;
  bool automatism = false;
  Argument canBeExecuted;
};

static void read(ExecuteCommandEffect& effect, ParameterReader& in) {
  effect.commandName = in.of(ParameterRole::COMMAND, 1, "no_list", "CommandName", "Class name of the command");
  effect.entityListCaller = in.list(2, "no_list", "EntityList Caller", "Units that are to do it");
  effect.entityListTarget = in.list(3, "no_list", "EntityList Target", "What they do it to: the first that exists");
  effect.position = in.vector(4, "0 0 0", "Position", "Where they do it; empty for nowhere");
  effect.automatism = in.flag(5, false, "Automatism", "The command counts as given by nobody");
  effect.canBeExecuted =
      in.variableOut(6, "MyVar", "Can Be Executed", "Variable that becomes 1 if the command is executed, else 0");
}

static void findTarget(ScenarioHandler& handler, const Argument& list, em5::CommandContext& context) {
  for (const std::uint64_t id : handler.ResolveEntityList(list)) {
    context.mTargetEntity = findEntity(id);
    if (context.mTargetEntity) return;
  }
}

static void readPosition(ScenarioHandler& handler, const Argument& argument, em5::CommandContext& context) {
  if (argument == "") return;
  float x = 0, y = 0, z = 0;
  if (!handler.SplitVecInXYZ(argument, x, y, z)) logInfo("ExecuteCommandEffect: cant read your Position argument.");
  context.mTargetPosition = glm::vec3(x, y, z);
}

/// The command if it may be executed; null, with the reason in the log, if not.
static qsf::game::Command* findExecutable(const std::string& name, const em5::CommandContext& context) {
  qsf::game::Command* command = findCommand(name);
  if (!command) {
    logInfo("Command: " + name + " is not valid");
    return nullptr;
  }
  const char* failed = !command->checkAvailable()                ? "checkAvailable"
                       : !command->checkCaller(*context.mCaller) ? "checkCaller"
                       : !command->checkContext(context)         ? "checkContext"
                                                                 : nullptr;
  if (!failed) return command;
  logInfo(std::string("Command did not passed the check \"") + failed + "\": " + name);
  return nullptr;
}

static void run(const ExecuteCommandEffect& effect, ScenarioHandler& handler) {
  em5::CommandContext context;
  forEachEntity(handler, effect.entityListCaller, [&](qsf::Entity& entity) { context.mCallers.push_back(&entity); });
  if (context.mCallers.empty()) {
    logInfo("ExecuteCommand: cant find a valid Caller in your given variable");
    handler.SetFloatVariable(effect.canBeExecuted, 0);
    return;
  }
  context.mCaller = context.mCallers.front();
  findTarget(handler, effect.entityListTarget, context);
  readPosition(handler, effect.position, context);
  context.mIsAutomatism = effect.automatism;
  qsf::game::Command* command = findExecutable(effect.commandName, context);
  handler.SetFloatVariable(effect.canBeExecuted, command ? 1.0f : 0.0f);
  if (command) command->execute(context);
}

EFFECT(ExecuteCommand, "Units", "Lets units execute a command as a player's click would")

}
