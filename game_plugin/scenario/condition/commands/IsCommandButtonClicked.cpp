#include "game_plugin/gui/CommandLine.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Selection.h"

namespace script {

struct IsCommandButtonClickedCondition : DefaultCondition {
  Argument cmdButtonId;
};

static void read(IsCommandButtonClickedCondition& condition, ParameterReader& in) {
  condition.cmdButtonId =
      in.of(ParameterRole::COMMAND, 1, "noId", "CmdButtonId",
            "CommandName, which has to be defined in ScenarioComponent for an entity in GuiCommandArray");
}

/// One click holds for one evaluation, whichever script asks first.
static bool test(const IsCommandButtonClickedCondition& condition, ScenarioHandler& handler) {
  CommandLine* commandLine = CommandLine::get();
  if (!findGameSelection() || !commandLine) return false;
  const std::string& commandName = handler.ResolveString(condition.cmdButtonId);
  if (!commandName.empty()) return commandLine->takeClick(commandName);
  logInfo("IsCmdButtonClickedCondition::CmdButtonId was not found");
  return false;
}

CONDITION(IsCommandButtonClicked, "Commands", "Check if Command in new CommandLine is pressed")

}
