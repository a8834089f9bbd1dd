#include "game_plugin/scenario/shared/gamepad/GamepadParameter.h"
#include "game_plugin/scenario/shared/parameters/PressEdge.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Gamepad.h"

namespace script {

struct OnGamepadButtonPressedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "A gamepad that is plugged in after the script was loaded is not seen.",
      "The number above the gamepad's last button is taken without a message; such a button is never pressed.",
      "A press that begins and ends between two evaluations isn't seen.",
  };

  Argument button;
  GamepadIndex index;
  RunState<PressEdge> pressEdge;
};

static void read(OnGamepadButtonPressedCondition& condition, ParameterReader& in) {
  const ParameterText button =
      in.of(ParameterRole::GAMEPAD_BUTTON, 1, "1", "Button",
            "There should be the buttons 1-16. Check out windows hardware config to test your controller");
  condition.button = button;
  condition.pressEdge = in.state<PressEdge>();
  condition.index = readGamepadIndex(
      in, button, &GamepadLayout::buttons,
      {.tooLow = "Your Gamepad Button is out of range! (too low)", .tooHigh = "Your Gamepad Button is out of range!"});
}

static bool test(const OnGamepadButtonPressedCondition& condition, ScenarioHandler& handler) {
  if (!condition.index.valid) return false;
  const std::optional<bool> pressed = gamepadButton(condition.index.value);
  return pressed && handler.stateOf(condition.pressEdge).update(*pressed);
}

CONDITION(OnGamepadButtonPressed, "InputEvents",
          "True if the Hotkey is pressed, Will always return false until the hotkey has been released")

}
