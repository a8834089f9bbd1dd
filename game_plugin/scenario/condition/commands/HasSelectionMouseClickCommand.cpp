#include "game_plugin/component/ScenarioCommandableComponent.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/Selection.h"

#include <algorithm>

namespace script {

struct HasSelectionMouseClickCommandCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "Only as many mouse click commands of an entity are looked at as it has action bar commands.",
      "If one selected entity has the command, all of the selection goes into the list, and the list isn't emptied "
      "before.",
  };

  Argument command;
  Argument entityList;
};

static void read(HasSelectionMouseClickCommandCondition& condition, ParameterReader& in) {
  condition.command =
      in.of(ParameterRole::COMMAND, 1, "no_command", "Command",
            "CommandName, which has to be defined in ScenarioComponent for an entity in NonGuiCommandArray");
  condition.entityList =
      in.listOut(2, "no_list", "EntityList", "Write all selected entities with the Command in this entityList");
}

/// Scripts pad the array of action bar commands to the other's length to make a command count.
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

  for (const std::uint64_t id : selected)
    if (findEntity(id)) handler.AddToEntityList(condition.entityList, id);
  return true;
}

CONDITION(HasSelectionMouseClickCommand, "Commands", "Check if current selected entity has command")

}
