#pragma once
#include "qsf/input/InputDevice.h"

#include <glm/glm.hpp>

namespace qsf {

class JoystickDevice;
class OisManager;

/// The keys: letters "A" to "Z", digits "0" to "9" (described with a blank in front, " 8", as the key caps are in the
/// game), "F1" to "F15", "Numpad0" to "Numpad9", "LeftShift", "Return" and so on.
class QSF_API KeyboardDevice : public InputDevice {
public:
  KeyboardDevice();
};

/// Buttons "Left", "Right", "Middle", in this order; axes "X", "Y", "Wheel", which tell the movement of this frame.
class QSF_API MouseDevice : public InputDevice {
public:
  MouseDevice();

  /// In pixels of the window, from its upper left corner.
  glm::vec2 getPosition() const { return mPosition; }
  void setPosition(const glm::vec2& position);
  InputAxis& getWheel() const { return *mWheel; }
  /// Forward is above 0. Several movements in one frame add up.
  void moveWheel(float steps) { mWheel->setValue(mWheel->getValue() + steps); }

private:
  glm::vec2 mPosition{0.0f, 0.0f};
  InputAxis* mX;
  InputAxis* mY;
  InputAxis* mWheel;
};

/// The devices of the player. No hardware stands behind them: tests, tools and effects set their state. Owned by Qsf.
class QSF_API InputSystem {
public:
  InputSystem();
  ~InputSystem();
  InputSystem(const InputSystem&) = delete;
  InputSystem& operator=(const InputSystem&) = delete;

  KeyboardDevice& getKeyboard() const { return *mKeyboard; }
  MouseDevice& getMouse() const { return *mMouse; }
  /// The gamepad's buttons and axes; none while no gamepad is plugged in.
  JoystickDevice& getJoystick() const { return *mJoystick; }
  /// Knows whether a gamepad is plugged in.
  OisManager& getOisManager() const { return *mOisManager; }

  /// Ends a frame: movements of the mouse are over, buttons stay as they are. Called by the host's frame.
  void endFrame();

private:
  std::unique_ptr<KeyboardDevice> mKeyboard;
  std::unique_ptr<MouseDevice> mMouse;
  std::unique_ptr<JoystickDevice> mJoystick;
  std::unique_ptr<OisManager> mOisManager;
};

}
