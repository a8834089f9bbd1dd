#include "game_plugin/gui/GUIEventListener.h"

#include "game_plugin/gui/Targets.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/EmergencyGui.h"
#include "qsf/gui/GuiContext.h"

#include <Rocket/Core/Dictionary.h>
#include <Rocket/Core/Element.h>
#include <Rocket/Core/Event.h>

#include <algorithm>

namespace script {

namespace {

GUIEventListener* theListener = nullptr;

struct Place {
  qsf::GuiDocument* document = nullptr;
  Rocket::Core::Element* element = nullptr; ///< null if one of both is missing, which has been told then
};

Place findElement(const std::string& operation, const std::string& documentName, const std::string& elementId) {
  Place place;
  place.document = GUIEventListener::findDocument(documentName);
  if (!place.document) {
    logInfo(operation + ": cant find your given \"GuiName\" " + documentName);
    return place;
  }
  place.element = place.document->findElementById(elementId);
  if (!place.element) logInfo(operation + ": cant find your given \"ElementId\" " + elementId);
  return place;
}

}

GUIEventListener* GUIEventListener::get() { return theListener; }

void GUIEventListener::create() {
  if (theListener) return;
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (gui)
    theListener = new GUIEventListener(gui->getGuiContext());
  else
    logInfo("Cant loadG GUIEventListener because the EM5-GUI Instance is a nullptr");
}

void GUIEventListener::destroy() { delete std::exchange(theListener, nullptr); }

GUIEventListener::GUIEventListener(qsf::GuiContext& context) : GuiDocument(context, "GUIEventListener") {}

GUIEventListener::~GUIEventListener() { letGoOfElements(); }

void GUIEventListener::letGoOfElements() {
  for (const GuiButtonEvent& buttonEvent : mButtonEvents) {
    const std::vector<qsf::GuiDocument*>& living = getGuiContext().getDocuments();
    if (std::ranges::find(living, buttonEvent.document) == living.end()) continue;
    if (Rocket::Core::Element* element = buttonEvent.document->findElementById(buttonEvent.elementId))
      element->RemoveEventListener("click", this, false);
  }
}

void GUIEventListener::forgetHandler(const ScenarioHandler* handler) {
  std::erase_if(mButtonEvents, [&](const GuiButtonEvent& buttonEvent) { return buttonEvent.handler == handler; });
}

void GUIEventListener::AddButtonEvent(const std::string& documentName, const std::string& elementId,
                                      const std::string& triggerName, ScenarioHandler& handler) {
  const Place place = findElement("GUIEventListener::AddButtonEvent", documentName, elementId);
  if (!place.element) return;
  ++mEventCounter;
  place.element->AddEventListener("click", this, false);
  mButtonEvents.push_back({place.document, elementId, mEventCounter, &handler, triggerName});
}

void GUIEventListener::ProcessGUIEvent(const std::string& documentName, const std::string& elementId,
                                       const std::string& eventType) {
  // The operation is called so in the messages that authors know.
  Rocket::Core::Element* element = findElement("ProcessGUIEvent::ProcessGUIEvent", documentName, elementId).element;
  if (!element) return;
  Rocket::Core::Event event(element, eventType, Rocket::Core::Dictionary(), false);
  element->ProcessEvent(event);
}

void GUIEventListener::SetAttribute(const std::string& documentName, const std::string& elementId,
                                    const std::string& attributeName, const std::string& value) {
  if (Rocket::Core::Element* element = findElement("GUIEventListener::SetAttribute", documentName, elementId).element)
    element->SetAttribute(attributeName, value);
}

void GUIEventListener::SetInnerRML(const std::string& documentName, const std::string& elementId,
                                   const std::string& text) {
  if (Rocket::Core::Element* element = findElement("GUIEventListener::SetInnerRML", documentName, elementId).element)
    element->SetInnerRML(text);
}

void GUIEventListener::SimulateButtonClick(const std::string& documentName, const std::string& elementId) {
  if (Rocket::Core::Element* element =
          findElement("GUIEventListener::SimulateButtonClick", documentName, elementId).element)
    element->Click();
}

void GUIEventListener::ProcessEvent(Rocket::Core::Event& event) {
  const std::string elementId = targetIdOf(event);
  logInfo("Button was pressed: " + elementId);
  // Kept: the document isn't compared; elements of one id in two documents press each other's buttons.
  for (const GuiButtonEvent& buttonEvent : mButtonEvents)
    if (buttonEvent.elementId == elementId) buttonEvent.handler->SetTriggerActive(buttonEvent.triggerName, true);
}

void GUIEventListener::processEvent(const std::string& /*name*/, Rocket::Core::Event& event) {
  logInfo("haha" + event.GetType());
}

}
