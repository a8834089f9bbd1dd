#pragma once
#include "em5/game/SelectionManager.h"

namespace script {

/// The selection of the game in progress; null without a game.
const em5::SelectionManager* findGameSelection();
/// What is selected where scripts run now: in the game if game and GUI are there, in the editor if neither is. Null
/// with only one of them, and where no editor runs.
const qsf::SelectionManagerTemplate<std::uint64_t>* findCurrentSelection();

}
