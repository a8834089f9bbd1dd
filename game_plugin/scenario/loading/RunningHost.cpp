#include "game_plugin/scenario/loading/RunningHost.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"
#include "qsf/input/OisManager.h"

namespace script {

std::vector<std::string> RunningHost::mouseButtons() const {
  std::vector<std::string> descriptions;
  if (const qsf::Qsf* host = qsf::Qsf::instance())
    for (const qsf::InputButton* button : host->getInputSystem().getMouse().getButtons())
      descriptions.push_back(button->getDescription());
  return descriptions;
}

std::optional<GamepadLayout> RunningHost::gamepad() const {
  const qsf::Qsf* host = qsf::Qsf::instance();
  if (!host || !host->getInputSystem().getOisManager().getOisJoystick()) return std::nullopt;
  const qsf::JoystickDevice& joystick = host->getInputSystem().getJoystick();
  return GamepadLayout{joystick.getButtons().size(), joystick.getAxes().size()};
}

std::vector<KeyboardKey> RunningHost::keyboardKeys() const {
  std::vector<KeyboardKey> keys;
  if (const qsf::Qsf* host = qsf::Qsf::instance())
    for (const qsf::InputButton* button : host->getInputSystem().getKeyboard().getButtons())
      keys.push_back({button->getName(), button->getDescription()});
  return keys;
}

}
