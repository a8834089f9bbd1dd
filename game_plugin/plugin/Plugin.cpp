#include "game_plugin/plugin/Plugin.h"

#include "game_plugin/action/SetCampPropertyAction.h"
#include "game_plugin/plugin/Version.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/lifecycle/FiringLedger.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/messages/MessageNames.h"

#include "em5/game/Game.h"
#include "em5/gui/EmergencyGui.h"
#include "em5/plugin/PluginVersion.h"
#include "qsf/Qsf.h"
#include "qsf/log/ErrorHandling.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/ClassRegistry.h"

namespace script {

namespace {

Plugin* thePlugin = nullptr;

/// The editor's hot reload. Games have the debugger's reload, which starts the running map's scripts, too.
void reloadInEditor() {
  if (qsf::UniqueInstance<em5::EmergencyGui>() || qsf::UniqueInstance<em5::Game>()) return;
  MapScriptManager::replace(false);
}

}

Plugin::Plugin(DeclareClasses declareClasses) : qsf::Plugin(new em5::PluginVersion), mDeclareClasses(declareClasses) {
  thePlugin = this;
}

Plugin::~Plugin() {
  if (thePlugin == this) thePlugin = nullptr;
}

Plugin* Plugin::get() { return thePlugin; }

const char* Plugin::getName() const { return "map change Plugin"; }
const char* Plugin::getVendor() const { return "BrillTarn"; }
const char* Plugin::getDescription() const {
  return "plugin offers all needed classes and methodes, which are necessary for a Tidemark";
}

bool Plugin::onInstall() {
  try {
    logInfo("");
    logInfo("----Loading plugin Tidemark Plugin----");
    logInfo(std::string("Build: Tidemark ") + MODULE_VERSION);
    for (const camp::Class* campClass : mDeclareClasses())
      addCampClass(*campClass);
    qsf::ClassRegistry::addOtherName(camp::classByType<SetCampPropertyAction>(), SetCampPropertyAction::ACTION_NAME);
    return true;
  } catch (const std::exception& exception) {
    const std::string text =
        std::string("Failed to install the plugin '") + getName() + "'. Exception caught: " + exception.what();
    qsf::ErrorHandling::printToLog(text, 1);
    qsf::ErrorHandling::handleBreakOnAssert(__FILE__, __LINE__, __func__);
    return false;
  }
}

bool Plugin::onStartup() {
  FiringLedger::clear();
  mDebuggerStarter.emplace();
  MapScriptManager::replace(true);
  em5::multiplayer::DataCacheItemFactory::addListener(mDataCacheListener);
  mSessionListener = std::make_unique<multiplayer::SessionListener>();
  for (const char* name : messages::ALL)
    qsf::Qsf::instance()->getMessageSystem().addMessageName(name);
  mReloadMessageProxy.registerAt(qsf::StringHash(messages::RELOAD_IN_EDITOR),
                                 [](const qsf::MessageParameters&) { reloadInEditor(); });
  return true;
}

void Plugin::onShutdown() {
  logInfo("Start Shutdown of Tidemark Plugin");
  delete MapScriptManager::get();
  em5::multiplayer::DataCacheItemFactory::removeListener(mDataCacheListener);
  mSessionListener.reset();
  mReloadMessageProxy.unregister();
  mDebuggerStarter.reset();
  logInfo("Tidemark Plugin was shutdown succesfully");
}

}
