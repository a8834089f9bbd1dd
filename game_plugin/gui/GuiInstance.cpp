#include "game_plugin/gui/GuiInstance.h"

#include "game_plugin/gui/GuiInstanceManager.h"
#include "game_plugin/gui/Targets.h"
#include "game_plugin/scenario/Log.h"

#include <Rocket/Core/Element.h>

namespace script {

GuiInstance::GuiInstance(qsf::GuiContext& context, const std::string& rmlFile) : GuiDocument(context, rmlFile) {
  if (!loadByFilename(rmlFile)) logInfo("rml-file " + rmlFile + " could not be loaded");
  setVisible(true);
}

Rocket::Core::Element* GuiInstance::findElement(const std::string& elementId) const {
  return findElementById(elementId);
}

void GuiInstance::showElement(Rocket::Core::Element& element, bool /*show*/) { (void)element.IsVisible(); }

void GuiInstance::ProcessEvent(Rocket::Core::Event& event) { logInfo("Button wurde gedrueckt: " + targetIdOf(event)); }

void GuiInstance::processEvent(const std::string& name, Rocket::Core::Event& event) {
  if (name == "onClose") {
    hide();
    return;
  }
  const std::string buttonId = targetIdOf(event);
  logInfo("Button wurde gedrueckt: " + buttonId);
  GuiInstanceManager* manager = GuiInstanceManager::get();
  if (!manager || !manager->activateTriggers(mUniqueId, buttonId)) logInfo("Button is not connected to trigger");
}

}
