#pragma once
#include "qsf/input/InputEvent.h"

namespace em5 {

class EmergencyGui;

/// What the keys of the input queue do to the GUI: Escape ends the video that plays, and the document with the focus
/// hears each of them, as `keydown` or `keyup` with the key's name as `key_identifier`. Owned by the GUI.
class GuiInput : public qsf::InputListener {
public:
  GuiInput(EmergencyGui& gui, qsf::InputSystem& input) : InputListener(input), mGui(gui) {}
  void onKeyboardEvent(const qsf::KeyboardEvent& event) override;

private:
  void endVideo() const;
  void tellFocusedDocument(const qsf::KeyboardEvent& event) const;

  EmergencyGui& mGui;
};

}
