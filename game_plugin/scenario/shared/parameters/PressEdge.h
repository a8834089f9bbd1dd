#pragma once

namespace script {

/// What a condition remembers of a button, so that it holds once a press: in the evaluation that first sees the button
/// down. A press that begins and ends between two evaluations isn't seen; one that began while nobody asked is seen as
/// long as the button is down.
class PressEdge {
public:
  /// Takes the button's state and tells whether it went down since the last call.
  bool update(bool pressed) {
    const bool wentDown = pressed && !mWasPressed;
    mWasPressed = pressed;
    return wentDown;
  }

private:
  bool mWasPressed = false;
};

}
