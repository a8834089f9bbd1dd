#pragma once
#include "qsf/input/InputDevice.h"

namespace OIS {
class JoyStick;
}

namespace qsf {

/// What a gamepad is made of.
struct GamepadModel {
  std::string vendor = "Wireless Gamepad";
  std::size_t buttons = 16;
  std::size_t axes = 6;
};

/// A gamepad as a device: buttons "Button1", ... and axes "X", "Y", "Z", "RotationX", "RotationY", "RotationZ",
/// "Axis7",
/// ... from -1 to 1. It has none while no gamepad is plugged in. Its state is set through OisManager. Owned by
/// InputSystem.
class QSF_API JoystickDevice : public InputDevice {
private:
  friend class OisManager;
  void plugIn(const GamepadModel& model);
  void unplug() { removeControls(); }
};

/// The gamepad, which OIS knows as a joystick. None is plugged in at first, and no hardware stands behind it: tests and
/// tools plug it in and play the user. There is one at most. Owned by InputSystem.
class QSF_API OisManager {
public:
  explicit OisManager(JoystickDevice& device);
  ~OisManager();
  OisManager(const OisManager&) = delete;
  OisManager& operator=(const OisManager&) = delete;

  /// Null while no gamepad is plugged in. Good until it is plugged out or another one in.
  OIS::JoyStick* getOisJoystick() const;

  /// A new gamepad at rest, in the place of one that is there. It has no more than MOST_CONTROLS buttons and axes.
  void plugIn(const GamepadModel& model);
  void unplug();

  /// What the user does; an index counts from 0. All tell whether there is such a control.
  bool setButton(std::size_t index, bool pressed);
  /// From -1 to 1, beyond it the nearer end; what isn't a number is 0.
  bool setAxis(std::size_t index, float value);
  /// The direction of the first POV, as OIS::Pov numbers it; 0 is its rest.
  bool setDirection(int direction);

  static constexpr std::size_t MOST_CONTROLS = 256;

private:
  class Joystick;
  JoystickDevice& mDevice;
  std::unique_ptr<Joystick> mJoystick;
};

}
