#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct StartMouseClickCommandCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "It always holds.",
      "The icon is that of the first line, of all scripts, that names the command; it never changes.",
      "When a condition behind it fails, the command is offered for one tick more.",
      "What it has offered outlives the script and its map.",
  };

  Argument mouseIcon;
  Argument commandName;
};

static void read(StartMouseClickCommandCondition& condition, ParameterReader& in) {
  condition.commandName = in.of(ParameterRole::COMMAND, 1, "no_command", "Command_Name",
                                "Name of the Command that shall be executed <-> must be inside the "
                                "script::ScenarioCommandableComponent of the entity which shall execute it");
  condition.mouseIcon = in.raw(2, "no_icon", "MouseIcon", "Mouse Icon, see default.rml from leiplexgle");
}

static bool test(const StartMouseClickCommandCondition& condition, ScenarioHandler&) {
  if (MapScriptManager* manager = MapScriptManager::get())
    manager->getScriptedCommands().beginBid(condition.commandName, condition.mouseIcon);
  return true;
}

CONDITION(StartMouseClickCommand, "Commands", "Setup a MouseClick command. Should be the first trigger of your trigger")

}
