#include "em5/game/UnitPoolHelper.h"

#include "em5/game/Game.h"
#include "qsf/base/LoadError.h"
#include "qsf/log/LogSystem.h"

namespace em5 {

void UnitPoolHelper::setUnitPoolForLocalPlayer(const std::string& name) const {
  const qsf::UniqueInstance<Game> game;
  if (!game) return;
  try {
    game->getPlayerManager()->getLocalPlayer()->getUnitPool().load(name);
  } catch (const qsf::LoadError& fault) {
    qsf::logMessage(qsf::LogSystem::ERROR, fault.what());
  }
}

}
