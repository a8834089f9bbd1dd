#include "game_plugin/scenario/shared/gamepad/GamepadParameter.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Gamepad.h"
#include "game_plugin/scenario/world/PlayerLog.h"

namespace script {

struct GamepadButtonIsPressedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "A gamepad that is plugged in after the script was loaded is not seen.",
      "The number above the gamepad's last button is taken without a message; such a button is never pressed.",
      "Writes a line into the player log each time it finds the button down.",
  };

  Argument button;
  GamepadIndex index;
};

static void read(GamepadButtonIsPressedCondition& condition, ParameterReader& in) {
  const ParameterText button =
      in.of(ParameterRole::GAMEPAD_BUTTON, 1, "1", "Button",
            "There should be the buttons 1-16. Check out windows hardware config to test your controller");
  condition.button = button;
  condition.index = readGamepadIndex(in, button, &GamepadLayout::buttons,
                                     {.tooLow = "Your Gamepad Button is out of range! (too low)",
                                      .tooHigh = "Your Gamepad Button is out of range! (too high)"});
}

static bool test(const GamepadButtonIsPressedCondition& condition, ScenarioHandler&) {
  if (!condition.index.valid || !gamepadButton(condition.index.value).value_or(false)) return false;
  writeToPlayerLog("Button was pressed");
  return true;
}

CONDITION(GamepadButtonIsPressed, "InputEvents", "True if the Hotkey is currently pressed")

}
