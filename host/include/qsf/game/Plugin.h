#pragma once
#include "qsf/base/UniqueInstance.h"
#include "qsf/game/CommandSystem.h"

namespace qsf::game {

/// The engine's systems for games. There as long as the host is.
class QSF_API Plugin : public UniqueInstanceTarget<Plugin> {
public:
  /// Null while no host runs.
  static Plugin* getInstance() { return UniqueInstance<Plugin>().get(); }

  CommandSystem& getCommandSystem() { return mCommandSystem; }

private:
  CommandSystem mCommandSystem;
};

}
