#include "game_plugin/scenario/shared/commands/UnitCommands.h"

#include "em5/base/Messages.h"
#include "qsf/Qsf.h"
#include "qsf/game/Plugin.h"
#include "qsf/message/MessageSystem.h"

namespace script {

qsf::game::Command* findCommand(const std::string& name) { return findCommand(qsf::StringHash(name).getHash()); }

qsf::game::Command* findCommand(std::uint32_t id) {
  auto* game = qsf::game::Plugin::getInstance();
  return game ? game->getCommandSystem().getCommandManager().internalGetCommandById(qsf::StringHash(id)) : nullptr;
}

void refreshCommandBar() {
  qsf::Qsf::instance()->getMessageSystem().emitMessage(qsf::MessageConfiguration(em5::Messages::EM5_CHANGE_SELECTION));
}

}
