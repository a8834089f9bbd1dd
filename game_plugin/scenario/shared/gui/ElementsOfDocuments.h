#pragma once
#include "game_plugin/gui/GuiInstanceManager.h"
#include "game_plugin/scenario/Log.h"

namespace script {

/// Calls the function with each document that scripts have loaded under that id, in the order of loading.
template <class Call> void forEachDocument(const std::string& uniqueId, Call&& call) {
  GuiInstanceManager* manager = GuiInstanceManager::get();
  if (!manager) return;
  for (const auto& instance : manager->getInstances())
    if (instance->getUniqueId() == uniqueId) call(*instance);
}

/// Calls the function with that element of each of them. A document that lacks it is told, always in the name of
/// SetInnerRML: authors know the message.
template <class Call> void forEachElement(const std::string& uniqueId, const std::string& elementId, Call&& call) {
  forEachDocument(uniqueId, [&](GuiInstance& instance) {
    if (Rocket::Core::Element* element = instance.findElement(elementId))
      call(*element);
    else
      logInfo("SetInnerRMLEffect: cant find the Element: " + elementId);
  });
}

}
