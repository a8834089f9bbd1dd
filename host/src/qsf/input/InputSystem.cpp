#include "qsf/input/InputSystem.h"

#include "qsf/input/OisManager.h"

namespace qsf {

InputDevice::InputDevice() = default;
InputDevice::~InputDevice() = default;

InputButton* InputDevice::findButton(const std::string& text) const {
  for (InputButton* button : mButtonView)
    if (button->getDescription() == text || button->getName() == text) return button;
  return nullptr;
}

InputButton& InputDevice::addButton(const std::string& name, const std::string& description) {
  mButtons.push_back(std::make_unique<InputButton>(name, description));
  mButtonView.push_back(mButtons.back().get());
  return *mButtons.back();
}

InputAxis& InputDevice::addAxis(const std::string& name) {
  mAxes.push_back(std::make_unique<InputAxis>(name, name));
  mAxisView.push_back(mAxes.back().get());
  return *mAxes.back();
}

void InputDevice::removeControls() {
  mButtonView.clear();
  mAxisView.clear();
  mButtons.clear();
  mAxes.clear();
}

KeyboardDevice::KeyboardDevice() {
  for (char letter = 'A'; letter <= 'Z'; ++letter)
    addButton(std::string(1, letter), std::string(1, letter));
  for (char digit = '0'; digit <= '9'; ++digit)
    addButton(std::string(1, digit), std::string{' ', digit}); // kept: scripts name digit keys by " 8"
  for (int number = 1; number <= 15; ++number)
    addButton("F" + std::to_string(number), "F" + std::to_string(number));
  for (char digit = '0'; digit <= '9'; ++digit)
    addButton(std::string("Numpad") + digit, std::string("Numpad") + digit);
  for (const char* name :
       {"NumpadPlus", "NumpadMinus", "NumpadMultiply", "NumpadDivide", "NumpadDecimal", "NumpadEnter", "NumLock",
        "Plus",       "Minus",       "Equals",         "Comma",        "Period",        "Semicolon",   "Apostrophe",
        "Grave",      "Slash",       "Backslash",      "LeftBracket",  "RightBracket",  "LeftShift",   "RightShift",
        "LeftCtrl",   "RightCtrl",   "LeftAlt",        "RightAlt",     "LeftWin",       "RightWin",    "Apps",
        "Return",     "Escape",      "Space",          "Tab",          "Backspace",     "CapsLock",    "ScrollLock",
        "Print",      "Pause",       "Insert",         "Delete",       "Home",          "End",         "PageUp",
        "PageDown",   "Up",          "Down",           "Left",         "Right"})
    addButton(name, name);
}

MouseDevice::MouseDevice() : mX(&addAxis("X")), mY(&addAxis("Y")), mWheel(&addAxis("Wheel")) {
  for (const char* name : {"Left", "Right", "Middle"})
    addButton(name, name);
}

void MouseDevice::setPosition(const glm::vec2& position) {
  mX->setValue(mX->getValue() + position.x - mPosition.x);
  mY->setValue(mY->getValue() + position.y - mPosition.y);
  mPosition = position;
}

InputSystem::InputSystem()
    : mKeyboard(std::make_unique<KeyboardDevice>()), mMouse(std::make_unique<MouseDevice>()),
      mJoystick(std::make_unique<JoystickDevice>()), mOisManager(std::make_unique<OisManager>(*mJoystick)) {}

InputSystem::~InputSystem() = default;

void InputSystem::endFrame() {
  for (InputAxis* axis : mMouse->getAxes())
    axis->setValue(0.0f);
}

}
