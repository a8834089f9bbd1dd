#include "em5/command/CommandHelper.h"

#include "em5/base/Messages.h"
#include "em5/component/CommandableComponent.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/base/Ids.h"
#include "qsf/game/Plugin.h"
#include "qsf/message/MessageSystem.h"

namespace em5 {

CommandContext CommandHelper::makeContext(qsf::Entity& caller, qsf::Entity* target) {
  CommandContext context;
  context.mCaller = &caller;
  context.mCallers = {&caller};
  context.mTargetEntity = target;
  if (target) context.mTargetPosition = EntityHelper(*target).getPosition();
  return context;
}

bool CommandHelper::passesChecks(Command& command, const CommandContext& context) {
  return command.checkAvailable() && command.checkCaller(*context.mCaller) && command.checkContext(context);
}

Command* CommandHelper::findBestCommand(const CommandContext& context) {
  const auto* commandable = context.mCaller->getComponent<CommandableComponent>();
  if (!commandable) return nullptr;
  Command* best = nullptr;
  // A check may change the unit's commands.
  const std::vector<std::uint32_t> ids = commandable->getCommandIds();
  for (const std::uint32_t id : ids) {
    Command* command = findCommand(qsf::StringHash(id));
    // The checks tell some commands what their priority is.
    if (command && passesChecks(*command, context) && (!best || command->getPriority() > best->getPriority()))
      best = command;
  }
  return best;
}

void CommandHelper::execute(Command& command, const CommandContext& context) {
  const std::uint64_t targetId = context.mTargetEntity ? context.mTargetEntity->getId() : qsf::UNINITIALIZED_ID;
  qsf::MessageParameters parameters(qsf::MessageConfiguration(
      Messages::EM5_PRE_COMMAND_EXECUTE, command.getId().getHash(), context.mCaller->getId(), targetId));
  parameters.setParameter("context", &context);
  qsf::Qsf::instance()->getMessageSystem().emitMessage(parameters);
  if (parameters.getResponse() != qsf::MessageParameters::RESPONSE_BLOCK) command.execute(context);
}

Command* CommandHelper::findCommand(qsf::StringHash id) {
  auto* game = qsf::game::Plugin::getInstance();
  return game ? dynamic_cast<Command*>(game->getCommandSystem().getCommandManager().internalGetCommandById(id))
              : nullptr;
}

}
