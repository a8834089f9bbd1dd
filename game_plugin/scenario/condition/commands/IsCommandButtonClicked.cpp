#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct IsCommandButtonClickedCondition : DefaultCondition {
  Argument cmdButtonId;
};

static void read(IsCommandButtonClickedCondition& condition, ParameterReader& in) {
  condition.cmdButtonId =
      in.of(ParameterRole::COMMAND, 1, "noId", "CmdButtonId",
            "CommandName, which has to be defined in ScenarioComponent for an entity in GuiCommandArray");
}

/// A click needs the action bar. The game has none yet, so there is none to ask and nothing was clicked.
static bool test(const IsCommandButtonClickedCondition&, ScenarioHandler&) { return false; }

CONDITION(IsCommandButtonClicked, "Commands", "Check if Command in new CommandLine is pressed")

}
