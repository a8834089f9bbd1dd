#pragma once
#include "qsf/game/CommandManager.h"

namespace qsf::game {

/// What there is of commands. Owned by qsf::game::Plugin.
class QSF_API CommandSystem {
public:
  CommandManager& getCommandManager() { return mCommandManager; }

private:
  CommandManager mCommandManager;
};

}
