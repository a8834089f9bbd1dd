#pragma once
#include "game_plugin/scenario/program/ProgramBuilder.h"

namespace script {

/// Answers what reading asks from the running host; from nothing if none runs.
class RunningHost : public ReadingHost {
public:
  std::vector<std::string> mouseButtons() const override;
  std::optional<GamepadLayout> gamepad() const override;
  std::vector<KeyboardKey> keyboardKeys() const override;
};

}
