#include "game_plugin/component/ScenarioCommandableComponent.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/Placeholder.h"
#include "game_plugin/scenario/shared/Selection.h"

#include <algorithm>

namespace script {

struct HasSelectionMouseClickCommandCondition : DefaultCondition {
  Argument command;
  Argument entityList;
};

static void read(HasSelectionMouseClickCommandCondition& condition, const Tokens& tokens) {
  condition.command = readStringParameter(
      tokens, 1, "no_command", "Command",
      "CommandName, which has to be defined in ScenarioComponent for an entity in NonGuiCommandArray");
  condition.entityList = readStringParameter(tokens, 2, "no_list", "EntityList",
                                             "Write all selected entities with the Command in this entityList");
}

/// Kept: as many mouse click commands are looked at as there are action bar commands. Scripts pad one array to the
/// other's length to make a command count.
static bool hasCommand(const ScenarioCommandableComponent& component, const std::string& command) {
  const std::vector<std::string>& mouseClick = component.getMouseClickCommands();
  const std::size_t looked = std::min(component.getActionBarCommands().size(), mouseClick.size());
  const auto end = mouseClick.begin() + static_cast<std::ptrdiff_t>(looked);
  return std::find(mouseClick.begin(), end, command) != end;
}

static bool test(const HasSelectionMouseClickCommandCondition& condition, ScenarioHandler& handler) {
  const std::string& command = handler.ResolveString(condition.command);
  if (isLeftAt(command, "no_command", "HasSelectionMouseClickCommandCondition::Command was not found")) return false;
  const em5::SelectionManager* selection = findGameSelection();
  if (!selection) return false;

  const auto& selected = selection->getSelectedIdSet();
  const bool hit = std::any_of(selected.begin(), selected.end(), [&](std::uint64_t id) {
    const qsf::Entity* entity = findEntity(id);
    const auto* component = entity ? entity->getComponent<ScenarioCommandableComponent>() : nullptr;
    return component && hasCommand(*component, command);
  });
  if (!hit || condition.entityList == "no_list") return hit;

  // Kept: all of the selection goes into the list, which isn't cleared; scripts collect in it.
  for (const std::uint64_t id : selected)
    if (findEntity(id)) handler.AddToEntityList(condition.entityList, id);
  return true;
}

CONDITION(HasSelectionMouseClickCommand, "Commands", "Check if current selected entity has command")

}
