#pragma once
#include "qsf/game/Command.h"

#include <memory>
#include <unordered_map>

namespace qsf::game {

/// Makes commands when they are first asked for and keeps them. Owned by the command system.
class QSF_API CommandManager {
public:
  CommandManager();
  ~CommandManager();
  CommandManager(const CommandManager&) = delete;
  CommandManager& operator=(const CommandManager&) = delete;
  static void declareCamp();

  /// The command whose class's name has that hash. Null if there is none.
  Command* internalGetCommandById(StringHash id);
  /// A class is about to go: its command goes, too.
  void forgetCommand(StringHash id);

private:
  std::unordered_map<StringHash, std::unique_ptr<Command>> mCommands;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::game::CommandManager)
