#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/commands/UnitCommands.h"

#include "em5/game/Game.h"

namespace script {

struct SelectUnitsEffect : DefaultEffect {
  Argument entityList;
  bool onlyOne = true;
};

static void read(SelectUnitsEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Units to select; an empty list leaves the selection");
  effect.onlyOne = in.flag(2, true,
                           "true = only one unit out of entityList will be selected<br>false = all entities out of "
                           "entityList will be selected",
                           "The one is the first");
}

static void run(const SelectUnitsEffect& effect, ScenarioHandler& handler) {
  const qsf::UniqueInstance<em5::Game> game;
  if (!game) return;
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  if (ids.empty()) return;
  em5::SelectionManager& selection = *game->getSelectionManager();
  selection.clearSelection();
  for (const std::uint64_t id : ids) {
    selection.addIdToSelection(id);
    if (effect.onlyOne) break;
  }
  refreshCommandBar();
}

EFFECT(SelectUnits, "Units", "Replaces the player's selection")

}
