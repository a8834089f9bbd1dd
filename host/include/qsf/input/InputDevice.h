#pragma once
#include "qsf/Export.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace qsf {

/// A button or an axis of a device, which owns it.
class QSF_API InputControl {
public:
  InputControl(std::string name, std::string description)
      : mName(std::move(name)), mDescription(std::move(description)) {}
  virtual ~InputControl() = default;
  InputControl(const InputControl&) = delete;
  InputControl& operator=(const InputControl&) = delete;

  /// Unique within the device.
  const std::string& getName() const { return mName; }
  /// What the player reads on the key.
  const std::string& getDescription() const { return mDescription; }

private:
  std::string mName;
  std::string mDescription;
};

/// Stays as it was set until it is set again.
class QSF_API InputButton : public InputControl {
public:
  using InputControl::InputControl;
  bool isPressed() const { return mPressed; }
  /// For tests and tools, which play the user.
  void setPressed(bool pressed) { mPressed = pressed; }

private:
  bool mPressed = false;
};

/// A position or, for a mouse, how far it moved in this frame.
class QSF_API InputAxis : public InputControl {
public:
  using InputControl::InputControl;
  float getValue() const { return mValue; }
  void setValue(float value) { mValue = value; }

private:
  float mValue = 0.0f;
};

/// A device with buttons and axes, found by index. Indices never change while the host lives, but for a gamepad's,
/// which comes and goes. Owned by InputSystem.
class QSF_API InputDevice {
public:
  virtual ~InputDevice();
  InputDevice(const InputDevice&) = delete;
  InputDevice& operator=(const InputDevice&) = delete;

  const std::vector<InputButton*>& getButtons() const { return mButtonView; }
  const std::vector<InputAxis*>& getAxes() const { return mAxisView; }
  /// The first button whose description or name is that text; null if there is none.
  InputButton* findButton(const std::string& text) const;

protected:
  InputDevice();
  InputButton& addButton(const std::string& name, const std::string& description);
  InputAxis& addAxis(const std::string& name);
  void removeControls();

private:
  std::vector<std::unique_ptr<InputButton>> mButtons;
  std::vector<std::unique_ptr<InputAxis>> mAxes;
  std::vector<InputButton*> mButtonView;
  std::vector<InputAxis*> mAxisView;
};

}
