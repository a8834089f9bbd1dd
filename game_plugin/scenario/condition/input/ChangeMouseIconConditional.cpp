#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/EmergencyGui.h"

namespace script {

struct ChangeMouseIconConditionalCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "It changes the cursor whenever it is reached, also behind a !, and then answers that it holds.",
  };

  Argument mouseIcon;
};

static void read(ChangeMouseIconConditionalCondition& condition, ParameterReader& in) {
  condition.mouseIcon = in.raw(1, "no_icon", "MouseIcon",
                               "Name of the Icon. Example : cool_with_extinguisher - Icons must exist in default.rml");
}

static bool test(const ChangeMouseIconConditionalCondition& condition, ScenarioHandler&) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (condition.mouseIcon != "no_icon" && gui) gui->setMouseCursor(condition.mouseIcon);
  return true;
}

CONDITION(
    ChangeMouseIconConditional, "General",
    "Changes the mouse cursor icon. Make sure that this condition is only reached if you want the mouse cursor to "
    "change. Returns always true")

}
