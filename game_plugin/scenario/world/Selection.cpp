#include "game_plugin/scenario/world/Selection.h"

#include "em5/game/Game.h"
#include "em5/gui/EmergencyGui.h"
#include "qsf/editor/Application.h"

namespace script {

const em5::SelectionManager* findGameSelection() {
  const qsf::UniqueInstance<em5::Game> game;
  return game ? game->getSelectionManager() : nullptr;
}

const qsf::SelectionManagerTemplate<std::uint64_t>* findCurrentSelection() {
  const bool hasGame = static_cast<bool>(qsf::UniqueInstance<em5::Game>());
  const bool hasGui = static_cast<bool>(qsf::UniqueInstance<em5::EmergencyGui>());
  if (hasGame && hasGui) return findGameSelection();
  const qsf::UniqueInstance<qsf::editor::Application> editor;
  if (hasGame || hasGui || !editor) return nullptr;
  return &editor->getSelectionSystem().getEntitySelectionManager();
}

}
