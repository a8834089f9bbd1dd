#include "game_plugin/gui/GuiInstanceManager.h"

#include "game_plugin/gui/AudioTrackerGUI.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/EmergencyGui.h"

#include <algorithm>

namespace script {

namespace {

GuiInstanceManager* theManager = nullptr;

}

GuiInstanceManager* GuiInstanceManager::get() { return theManager; }

void GuiInstanceManager::create() {
  if (!theManager) theManager = new GuiInstanceManager;
}

void GuiInstanceManager::destroy() { delete std::exchange(theManager, nullptr); }

GuiInstanceManager::GuiInstanceManager() { GuiDocuments::set(this); }

GuiInstanceManager::~GuiInstanceManager() {
  GuiDocuments::set(nullptr);
  for (std::unique_ptr<GuiInstance>& instance : mInstances) {
    logInfo("Destroy" + instance->getUniqueId());
    instance.reset();
  }
}

void GuiInstanceManager::forgetHandler(const ScenarioHandler* handler) {
  std::erase_if(mConnections, [&](const ButtonConnection& connection) { return connection.handler == handler; });
}

void GuiInstanceManager::LoadRMLFile(const std::string& rmlFile, const std::string& uniqueId) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (!gui) {
    logInfo("EM5_GUI-Instance is a nullptr.. skipping LoadRMLFile");
    return;
  }
  if (mInstances.size() >= MAXIMUM_DOCUMENTS) {
    logError("LoadRMLFile: scripts have " + std::to_string(MAXIMUM_DOCUMENTS) + " documents; " + rmlFile +
             " is not loaded");
    return;
  }
  mInstances.push_back(std::make_unique<GuiInstance>(gui->getGuiContext(), rmlFile));
  mInstances.back()->setUniqueId(uniqueId);
}

void GuiInstanceManager::ConnectButtonToTrigger(const std::string& buttonId, const std::string& triggerId,
                                                ScenarioHandler& handler, const std::string& uniqueId) {
  logInfo("Connected Button to trigger " + buttonId + " " + triggerId + " " + uniqueId);
  mConnections.push_back({buttonId, triggerId, uniqueId, &handler});
}

bool GuiInstanceManager::activateTriggers(const std::string& uniqueId, const std::string& buttonId) {
  bool found = false;
  for (const ButtonConnection& connection : mConnections) {
    if (connection.uniqueId != uniqueId || connection.buttonId != buttonId) continue;
    connection.handler->SetTriggerActive(connection.triggerId, true);
    found = true;
  }
  return found;
}

bool GuiInstanceManager::isVisible(const std::string& uniqueId) const {
  const auto found = std::ranges::find(mInstances, uniqueId, &GuiInstance::getUniqueId);
  return found != mInstances.end() && (*found)->isVisible();
}

std::vector<qsf::GuiDocument*> GuiInstanceManager::find(const std::string& uniqueId) const {
  std::vector<qsf::GuiDocument*> found;
  for (const auto& instance : mInstances)
    if (instance->getUniqueId() == uniqueId) found.push_back(instance.get());
  return found;
}

void GuiInstanceManager::switchTracker(bool wanted) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (!wanted)
    mTracker.reset();
  else if (gui && !mTracker)
    mTracker = std::make_unique<AudioTrackerGUI>(gui->getGuiContext());
}

}
