#include "game_plugin/scenario/world/Gamepad.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"
#include "qsf/input/OisManager.h"

#include <OISJoyStick.h>

namespace script {

namespace {

/// Null while no gamepad is plugged in.
const OIS::JoyStick* findJoystick() {
  const qsf::Qsf* host = qsf::Qsf::instance();
  return host ? host->getInputSystem().getOisManager().getOisJoystick() : nullptr;
}

}

bool hasGamepad() { return findJoystick() != nullptr; }

std::optional<std::string> gamepadVendor() {
  if (const OIS::JoyStick* joystick = findJoystick()) return joystick->vendor();
  return std::nullopt;
}

std::optional<bool> gamepadButton(std::size_t index) {
  const OIS::JoyStick* joystick = findJoystick();
  if (!joystick) return std::nullopt;
  const std::vector<bool>& buttons = joystick->getJoyStickState().mButtons;
  return index < buttons.size() && buttons[index];
}

std::optional<int> gamepadDirection() {
  const OIS::JoyStick* joystick = findJoystick();
  if (!joystick) return std::nullopt;
  return joystick->getJoyStickState().mPOV[0].direction;
}

std::optional<float> gamepadAxis(std::size_t index) {
  if (!findJoystick()) return std::nullopt;
  const auto& axes = qsf::Qsf::instance()->getInputSystem().getJoystick().getAxes();
  if (index >= axes.size()) return std::nullopt;
  return axes[index]->getValue();
}

}
