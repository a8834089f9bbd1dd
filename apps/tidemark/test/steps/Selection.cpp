#include "apps/tidemark/test/steps/Selection.h"

#include "apps/tidemark/test/TestSession.h"

#include "em5/base/Messages.h"
#include "em5/game/Game.h"
#include "qsf/Qsf.h"
#include "qsf/editor/Application.h"
#include "qsf/message/MessageSystem.h"

namespace tidemark::test {

namespace {

qsf::SelectionManagerTemplate<std::uint64_t>* findManager() {
  if (const qsf::UniqueInstance<qsf::editor::Application> editor; editor)
    return &editor->getSelectionSystem().getEntitySelectionManager();
  if (const qsf::UniqueInstance<em5::Game> game; game) return game->getSelectionManager();
  return nullptr;
}

}

std::set<std::uint64_t> getSelection() {
  const auto* manager = findManager();
  return manager ? manager->getSelectedIdSet() : std::set<std::uint64_t>();
}

void setSelection(const std::set<std::uint64_t>& ids) {
  auto* manager = findManager();
  if (!manager) throw NotThere("nothing can be selected while no game runs");
  const bool isTheOldOne = manager->getSelectedIdSet() == ids;
  manager->setSelection(ids);
  // A click on what is selected already is told, too; the manager itself tells of changes only.
  if (isTheOldOne && !qsf::UniqueInstance<qsf::editor::Application>())
    qsf::Qsf::instance()->getMessageSystem().emitMessage(
        qsf::MessageConfiguration(em5::Messages::EM5_CHANGE_SELECTION));
}

}
