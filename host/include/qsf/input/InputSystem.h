#pragma once
#include "qsf/input/InputDevice.h"
#include "qsf/input/InputEvent.h"

#include <glm/glm.hpp>

#include <memory>
#include <vector>

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

  /// The event comes to the listeners when the next frame begins. Noted in the call recorder with the button's name and
  /// `1` if it is pressed. Beyond MOST_EVENTS in a frame it is dropped, which is logged once.
  void addEventToInputQueue(std::unique_ptr<KeyboardEvent> event);
  /// Begins a frame: tells the listeners of what has been queued; what they queue comes with the next frame. Called by
  /// the host's frame.
  void deliverEvents();
  static constexpr std::size_t MOST_EVENTS = 1000;

  /// Ends a frame: movements of the mouse are over, buttons stay as they are. Called by the host's frame.
  void endFrame();

private:
  friend class InputListener;
  void tellListeners(const KeyboardEvent& event);

  std::unique_ptr<KeyboardDevice> mKeyboard;
  std::unique_ptr<MouseDevice> mMouse;
  std::unique_ptr<JoystickDevice> mJoystick;
  std::unique_ptr<OisManager> mOisManager;
  std::vector<std::unique_ptr<KeyboardEvent>> mQueue;
  std::vector<InputListener*> mListeners; ///< null in the place of those that went while events were delivered
  bool mDelivering = false;
  bool mBoundTold = false;
};

}
