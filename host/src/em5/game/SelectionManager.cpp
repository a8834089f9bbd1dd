#include "em5/game/SelectionManager.h"

#include "em5/base/Messages.h"
#include "qsf/Qsf.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"

namespace em5 {

void SelectionManager::dropDestroyedEntities() {
  IdSet kept;
  IdSet alive;
  for (const std::uint64_t id : getSelectedIdSet()) {
    const bool lives = qsf::getMainMap().getEntityById(id) != nullptr;
    if (lives) alive.insert(id);
    if (lives || !mSeenAlive.count(id)) kept.insert(id);
  }
  mSeenAlive = std::move(alive);
  setSelection(kept);
}

void SelectionManager::onSelectionChanged() {
  for (const std::uint64_t id : getSelectedIdSet())
    if (qsf::getMainMap().getEntityById(id)) mSeenAlive.insert(id);
  qsf::Qsf::instance()->getMessageSystem().emitMessage(qsf::MessageConfiguration(Messages::EM5_CHANGE_SELECTION));
}

}
