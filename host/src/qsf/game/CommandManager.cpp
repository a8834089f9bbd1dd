#include "qsf/game/CommandManager.h"

#include "qsf/reflection/ClassRegistry.h"

#include <camp/classbuilder.hpp>

namespace qsf::game {

namespace {

const camp::Class* findCommandClass(StringHash id) {
  const camp::Class* metaclass = ClassRegistry::findClass(id);
  // A class is known by other names, too; a command by its own alone.
  const bool isCommand = metaclass && StringHash(metaclass->name()) == id &&
                         ClassRegistry::isOrDerivesFrom(*metaclass, camp::classByType<Command>());
  return isCommand ? metaclass : nullptr;
}

}

CommandManager::CommandManager() = default;

CommandManager::~CommandManager() = default;

void CommandManager::declareCamp() { camp::Class::declare<CommandManager>("qsf::game::CommandManager"); }

Command* CommandManager::internalGetCommandById(StringHash id) {
  if (const auto found = mCommands.find(id); found != mCommands.end()) return found->second.get();
  const camp::Class* metaclass = findCommandClass(id);
  if (!metaclass) return nullptr;
  const camp::UserObject made = metaclass->construct(camp::Args(camp::UserObject(*this)));
  if (!made.pointer()) return nullptr; // a base of commands, which can't be made
  return mCommands.emplace(id, made.get<Command*>()).first->second.get();
}

void CommandManager::forgetCommand(StringHash id) { mCommands.erase(id); }

}
