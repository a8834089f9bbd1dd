#include "game_plugin/scenario/shared/gamepad/GamepadParameter.h"

namespace script {

struct GamepadPOVIsPressedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "Always passes, whatever the gamepad reads and also without a gamepad; with ! it passes, too.",
  };

  GamepadDirection direction;
};

static void read(GamepadPOVIsPressedCondition& condition, ParameterReader& in) {
  condition.direction = readGamepadDirection(in);
}

CONDITION_WITHOUT_TEST(GamepadPOVIsPressed, "InputEvents", "Always passes. Use OnGamepadPOVPressed")

}
