#pragma once
#include "qsf/Export.h"

namespace qsf {

class InputButton;
class InputSystem;

/// A key goes down or up, as the game hears of it. The key's own state is the device's and stays as it is.
class QSF_API KeyboardEvent {
public:
  /// The button is the keyboard's.
  KeyboardEvent(const InputButton& button, bool pressed) : mButton(&button), mPressed(pressed) {}
  virtual ~KeyboardEvent();

  const InputButton& getButton() const { return *mButton; }
  /// False: it is released.
  bool isPressed() const { return mPressed; }

private:
  const InputButton* mButton;
  bool mPressed;
};

/// Hears the events of the input queue for as long as it lives, those who came first before the others. It may be
/// destroyed while it is being told. What it throws is logged.
class QSF_API InputListener {
public:
  explicit InputListener(InputSystem& input);
  virtual ~InputListener();
  InputListener(const InputListener&) = delete;
  InputListener& operator=(const InputListener&) = delete;

  virtual void onKeyboardEvent(const KeyboardEvent& event) = 0;

private:
  InputSystem& mInput;
};

}
