#pragma once
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/CommandableComponent.h"
#include "qsf/game/CommandManager.h"

namespace script {

/// The command whose class has that name. Null if there is none.
qsf::game::Command* findCommand(const std::string& name);
qsf::game::Command* findCommand(std::uint32_t id);
/// Lets the command bar show what units understand now.
void refreshCommandBar();

/// Calls `change(ids, id of the command)` for the entities of a list argument that can have commands; a name that is no
/// command's is logged for each. Refreshes the command bar if any call says that it has changed something.
template <class Change>
void changeCommands(ScenarioHandler& handler, const Argument& list, const std::string& name, Change&& change) {
  bool changed = false;
  forEachEntity(handler, list, [&](qsf::Entity& entity) {
    auto* commandable = entity.getComponent<em5::CommandableComponent>();
    if (!commandable) return;
    if (const qsf::game::Command* command = findCommand(name))
      changed |= change(commandable->getCommandIdsForWriting(), command->getId().getHash());
    else
      logInfo(name + " cant be found");
  });
  if (changed) refreshCommandBar();
}

}
