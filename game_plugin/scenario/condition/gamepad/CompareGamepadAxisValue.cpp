#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/shared/gamepad/GamepadParameter.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Gamepad.h"

namespace script {

struct CompareGamepadAxisValueCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "A gamepad that is plugged in after the script was loaded is not seen.",
      "The number above the gamepad's last axis is taken without a message; such an axis is never between the bounds.",
      "The bounds themselves are outside, so with the defaults an axis at its end doesn't count.",
      "The variable is written also when the condition fails.",
  };

  Argument axis;
  Argument lowerBound;
  Argument upperBound;
  Argument exactValue;
  GamepadIndex index;
};

/// Tells of an axis that is there what its values can be.
static void tellRange(const CompareGamepadAxisValueCondition& condition, ProgramBuilder& builder) {
  const std::optional<GamepadLayout> gamepad = builder.host().gamepad();
  if (!condition.index.valid || condition.index.value >= gamepad->axes) return;
  builder.log(LOG_INFO, "Gamepad axis " + std::to_string(condition.index.value + 1) + " of " +
                            std::to_string(gamepad->axes) + " has values from -1 to 1");
}

static void read(CompareGamepadAxisValueCondition& condition, ParameterReader& in) {
  const ParameterText axis = in.raw(
      1, "1", "AxisIndex",
      "Which Axis do you want to track (1 = X ; 2 = Y; 3 = Z ... on a normal Wireless Gamepad... your gamepad can "
      "have more or less axis)");
  condition.axis = axis;
  condition.lowerBound =
      in.number(2, "-1", "Lower Bound", "The Condition can be only true if it is higher as this value");
  condition.upperBound =
      in.number(3, "1", "Upper Bound", "The Condition can be only true if it is lower as this value");
  condition.exactValue = in.variableOut(4, "AxisValue", "ExactValue_OUT", "");
  condition.index = readGamepadIndex(
      in, axis, &GamepadLayout::axes,
      {.tooLow = "Your Gamepad Button is out of range! (too low) ", .tooHigh = "Your Gamepad Button is out of range!"});
  if (!in.isDescribing()) tellRange(condition, in.builder());
}

static bool test(const CompareGamepadAxisValueCondition& condition, ScenarioHandler& handler) {
  if (!condition.index.valid) return false;
  const std::optional<float> value = gamepadAxis(condition.index.value);
  if (!value) return false;
  handler.SetFloatVariable(condition.exactValue, *value);
  const float lowerBound = handler.ResolveFloat(condition.lowerBound);
  const float upperBound = handler.ResolveFloat(condition.upperBound);
  return *value > lowerBound && *value < upperBound;
}

CONDITION(CompareGamepadAxisValue, "InputEvents", "Gets the axis value of a controller")

}
