#include "qsf/input/OisManager.h"

#include <OISJoyStick.h>

#include <algorithm>
#include <cmath>

namespace qsf {

void JoystickDevice::plugIn(const GamepadModel& model) {
  removeControls();
  for (std::size_t number = 1; number <= std::min(model.buttons, OisManager::MOST_CONTROLS); ++number)
    addButton("Button" + std::to_string(number), "Button " + std::to_string(number));
  static constexpr const char* AXES[] = {"X", "Y", "Z", "RotationX", "RotationY", "RotationZ"};
  for (std::size_t i = 0; i < std::min(model.axes, OisManager::MOST_CONTROLS); ++i)
    addAxis(i < std::size(AXES) ? AXES[i] : "Axis" + std::to_string(i + 1));
}

/// Its state is what was set last; there is nothing to capture.
class OisManager::Joystick : public OIS::JoyStick {
public:
  Joystick(const std::string& vendor, std::size_t buttons, std::size_t axes) : JoyStick(vendor, false, 0, nullptr) {
    mPOVs = 1;
    mState.mButtons.resize(buttons);
    mState.mAxes.resize(axes);
    mState.clear();
  }
  OIS::JoyStickState& state() { return mState; }
  void setBuffered(bool buffered) override { mBuffered = buffered; }
  void capture() override {}
  OIS::Interface* queryInterface(OIS::Interface::IType) override { return nullptr; }
  void _initialize() override {}
};

OisManager::OisManager(JoystickDevice& device) : mDevice(device) {}
OisManager::~OisManager() = default;

OIS::JoyStick* OisManager::getOisJoystick() const { return mJoystick.get(); }

void OisManager::plugIn(const GamepadModel& model) {
  mDevice.plugIn(model);
  mJoystick = std::make_unique<Joystick>(model.vendor, mDevice.getButtons().size(), mDevice.getAxes().size());
}

void OisManager::unplug() {
  mDevice.unplug();
  mJoystick.reset();
}

bool OisManager::setButton(std::size_t index, bool pressed) {
  if (index >= mDevice.getButtons().size()) return false;
  mDevice.getButtons()[index]->setPressed(pressed);
  mJoystick->state().mButtons[index] = pressed;
  return true;
}

bool OisManager::setAxis(std::size_t index, float value) {
  if (index >= mDevice.getAxes().size()) return false;
  const float position = std::isnan(value) ? 0.0f : std::clamp(value, -1.0f, 1.0f);
  mDevice.getAxes()[index]->setValue(position);
  mJoystick->state().mAxes[index].abs = static_cast<int>(std::lround(position * OIS::JoyStick::MAX_AXIS));
  return true;
}

bool OisManager::setDirection(int direction) {
  if (!mJoystick) return false;
  mJoystick->state().mPOV[0].direction = direction;
  return true;
}

}
