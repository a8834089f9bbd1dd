#include "GuiInput.h"

#include "Rocket/Core.h"
#include "em5/gui/EmergencyGui.h"
#include "qsf/input/InputDevice.h"

namespace em5 {

void GuiInput::onKeyboardEvent(const qsf::KeyboardEvent& event) {
  if (event.isPressed() && event.getButton().getName() == "Escape") endVideo();
  tellFocusedDocument(event);
}

/// A video plays while its window is visible and its element `video` has a source.
void GuiInput::endVideo() const {
  for (qsf::GuiDocument* window :
       {mGui.getIngameHud()->getFullscreenVideoWindow(), mGui.getMainMenuManager()->getVideoPlayerWindow()}) {
    Rocket::Core::Element* video = window->isVisible() ? window->findElementById("video") : nullptr;
    if (!video || video->GetAttribute("src").empty()) continue;
    video->RemoveAttribute("src");
    window->hide();
  }
}

void GuiInput::tellFocusedDocument(const qsf::KeyboardEvent& event) const {
  const qsf::GuiDocument* document = mGui.getGuiContext().getFocusedDocument();
  Rocket::Core::ElementDocument* elements = document ? document->getElementDocument() : nullptr;
  if (!elements) return;
  Rocket::Core::Dictionary parameters;
  parameters.Set("key_identifier", Rocket::Core::String(event.getButton().getName()));
  elements->DispatchEvent(event.isPressed() ? "keydown" : "keyup", parameters);
}

}
