#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct IsCommandButtonClickedCondition : DefaultCondition {
  Argument cmdButtonId;
};

static void read(IsCommandButtonClickedCondition& condition, const Tokens& tokens) {
  condition.cmdButtonId =
      readStringParameter(tokens, 1, "noId", "CmdButtonId",
                          "CommandName, which has to be defined in ScenarioComponent for an entity in GuiCommandArray");
}

/// A click needs the action bar. The game has none yet, so there is none to ask and nothing was clicked.
static bool test(const IsCommandButtonClickedCondition&, ScenarioHandler&) { return false; }

CONDITION(IsCommandButtonClicked, "Commands", "Check if Command in new CommandLine is pressed")

}
