#include "game_plugin/scenario/shared/gamepad/GamepadParameter.h"
#include "game_plugin/scenario/shared/parameters/PressEdge.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Gamepad.h"

namespace script {

struct OnGamepadPOVPressedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "A gamepad that is plugged in after the script was loaded is not seen.",
      "North is not pressed while the gamepad reads Northeast.",
      "None holds once when the gamepad comes to rest, and once at the start if it is at rest then.",
  };

  GamepadDirection direction;
  RunState<PressEdge> pressEdge;
};

static void read(OnGamepadPOVPressedCondition& condition, ParameterReader& in) {
  condition.direction = readGamepadDirection(in);
  condition.pressEdge = in.state<PressEdge>();
}

static bool test(const OnGamepadPOVPressedCondition& condition, ScenarioHandler& handler) {
  if (!condition.direction.valid) return false;
  const std::optional<int> direction = gamepadDirection();
  return direction && handler.stateOf(condition.pressEdge).update(*direction == condition.direction.value);
}

CONDITION(OnGamepadPOVPressed, "InputEvents",
          "True if the POVDirection is pressed, Will always return false until the hotkey has been released")

}
