#include "game_plugin/scenario/lifecycle/MapScriptManager.h"

#include "game_plugin/gui/CommandLine.h"
#include "game_plugin/gui/DebuggerWindow.h"
#include "game_plugin/gui/GUIEventListener.h"
#include "game_plugin/gui/GuiInstanceManager.h"
#include "game_plugin/gui/ScenarioBasicGui.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/camera/ScenarioCameraMovement.h"
#include "game_plugin/scenario/documentation/ReferenceFiles.h"
#include "game_plugin/scenario/hints/ExecutionPoint.h"
#include "game_plugin/scenario/lifecycle/FiringLedger.h"
#include "game_plugin/scenario/lifecycle/PreCommandCheck.h"
#include "game_plugin/scenario/lifecycle/ScriptFates.h"
#include "game_plugin/scenario/loading/ProgramCache.h"
#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"

#include "em5/base/Jobs.h"
#include "em5/base/Messages.h"
#include "em5/game/Game.h"
#include "em5/gui/EmergencyGui.h"
#include "em5/plugin/Plugin.h"
#include "qsf/Qsf.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/map/Map.h"

#include <algorithm>

namespace script {

namespace {

MapScriptManager* theManager = nullptr;

bool hasGame() { return static_cast<bool>(qsf::UniqueInstance<em5::Game>()); }
bool hasGui() { return static_cast<bool>(qsf::UniqueInstance<em5::EmergencyGui>()); }

/// "what, day.script:12" of the line at work.
std::string withOrigin(const std::string& what) {
  if (!executionPoint.source) return what;
  const std::string& path = executionPoint.source->path();
  return what + ", " + path.substr(path.find_last_of("/\\") + 1) + ":" + std::to_string(executionPoint.line);
}

bool isMainMap(const std::string& map) {
  const qsf::AssetProxy proxy(map);
  return proxy.getAsset() && proxy.getGlobalAssetId() == qsf::getMainMap().getGlobalAssetId();
}

}

MapScriptManager::MapScriptManager() : MapScriptManager(true) {}

MapScriptManager::MapScriptManager(bool writeDocumentation) : mPrograms(std::make_unique<ProgramCache>()) {
  theManager = this;
  ScenarioHandler::setDirectory(this);
  ScenarioCameraMovement::create();
  LoadConfiguration(writeDocumentation);
  mGameStartupMessageProxy.registerAt(em5::Messages::GAME_STARTUP_FINISHED,
                                      [this](const qsf::MessageParameters&) { onGameStartupFinished(); });
  mGameShutdownMessageProxy.registerAt(em5::Messages::GAME_SHUTDOWN_STARTING,
                                       [this](const qsf::MessageParameters&) { DoShutdown(); });
  mFrameJobProxy.registerAt(em5::Jobs::ANIMATION_VEHICLE, [this](const qsf::JobArguments&) {
    mStartsInFrame = 0;
    mBoundTold = false;
  });
}

MapScriptManager::~MapScriptManager() {
  DoShutdown();
  for (ScenarioHandler* handler : mLeftRunning)
    ScenarioHandler::retire(handler);
  forgetScripts();
  if (theManager != this) return;
  ScenarioCameraMovement::shutdown();
  theManager = nullptr;
  ScenarioHandler::setDirectory(nullptr);
}

MapScriptManager* MapScriptManager::get() { return theManager; }

MapScriptManager& MapScriptManager::replace(bool writeDocumentation) {
  delete theManager;
  return *new MapScriptManager(writeDocumentation);
}

void MapScriptManager::reloadInGame() {
  MapScriptManager& manager = replace(true);
  if (hasGame()) manager.StartMapScripts();
}

void MapScriptManager::LoadConfiguration(bool writeDocumentation) {
  if (writeDocumentation) documentation::leaveReferenceFiles();
  logInfo("***** MapscriptManager started succesfully *****");
  logInfo("");
  forgetScripts();
  fates::clear();
  if (em5::Plugin* game = em5::Plugin::getInstance())
    for (const auto& mod : game->getModSystem().getMods())
      if (mod->isMounted() && mod->isEnabled()) readMod(*mod);

  if (!hasGame() || !hasGui()) { // the editor
    makeMessageReciever();
    mEditorJobProxy.registerAt(
        em5::Jobs::ANIMATION_VEHICLE, [this](const qsf::JobArguments& arguments) { editorJob(arguments); },
        qsf::jobs::JobConfiguration(2));
  }
  parseScripts();
  if (hasGui()) {
    GUIEventListener::create();
    startGameScript();
  }
  GuiInstanceManager::create();
}

void MapScriptManager::parseScripts() {
  for (MapScriptEntry* entry : mScriptEntries) {
    entry->document = loadDocument(*entry);
    FiringLedger::restore(*entry);
  }
}

std::shared_ptr<ScriptDocument> MapScriptManager::loadDocument(const MapScriptEntry& entry) {
  auto document = std::make_shared<ScriptDocument>(mPrograms->load(entry.path, entry.globalNamePrefix));
  if (mMessageReciever)
    for (const std::string& key : document->program->keys())
      mMessageReciever->registerHotkey(key);
  return document;
}

void MapScriptManager::makeMessageReciever() {
  if (!mMessageReciever) mMessageReciever = std::make_unique<ScenarioMessageReciever>();
}

/// Only the first one ever runs: it is the game's one script, and starts once per manager.
void MapScriptManager::startGameScript() {
  const auto found = std::find_if(mScriptEntries.begin(), mScriptEntries.end(),
                                  [](const MapScriptEntry* entry) { return entry->mode == ScriptMode::GAME_STARTUP; });
  if (found != mScriptEntries.end()) startScript(**found);
}

void MapScriptManager::startScript(MapScriptEntry& entry) {
  if (entry.handler) mLeftRunning.push_back(entry.handler);
  entry.handler = new ScenarioHandler(mGlobalStores);
  entry.handler->SetDocument(entry.document);
  entry.handler->Start(entry.mode == ScriptMode::MAP_STARTUP_SIMULATION ? StartKind::SIMULATION : StartKind::REALTIME);
}

void MapScriptManager::onGameStartupFinished() {
  if (hasGame() && hasGui()) StartMapScripts();
}

void MapScriptManager::StartMapScripts() {
  GuiInstanceManager::create();
  makeMessageReciever();
  mBlockedEntityIds.clear();
  watchSelection();
  startScriptsOfMap(
      [](ScriptMode mode) { return mode == ScriptMode::MAP_STARTUP || mode == ScriptMode::MAP_STARTUP_SIMULATION; });
  mPreCommandMessageProxy.registerAt(em5::Messages::EM5_PRE_COMMAND_EXECUTE,
                                     [this](const qsf::MessageParameters& parameters) {
                                       if (isExtinguishingBlocked(parameters, mBlockedEntityIds))
                                         parameters.setResponse(qsf::MessageParameters::RESPONSE_BLOCK);
                                     });
  makeGui();
}

/// The action bar follows the selection, beginning anew with the scripts.
void MapScriptManager::watchSelection() {
  if (CommandLine* commandLine = CommandLine::get()) commandLine->resetSelection();
  mSelectionJobProxy.registerAt(
      em5::Jobs::REALTIME_GUI_DEBUG,
      [](const qsf::JobArguments&) {
        if (CommandLine* commandLine = CommandLine::get()) commandLine->handleSelection();
      },
      qsf::jobs::JobConfiguration(2));
}

/// The documents that all scripts share, where the player has a game's windows.
void MapScriptManager::makeGui() {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (!gui || !gui->getIngameHud()) return;
  CommandLine::create(gui->getGuiContext());
  ScenarioBasicGui::create(gui->getGuiContext());
  DebuggerWindow::startUp();
  GUIEventListener::create();
}

void MapScriptManager::startScriptsOfMap(bool (*isStarted)(ScriptMode)) {
  for (MapScriptEntry* entry : mScriptEntries)
    if (isStarted(entry->mode) && std::any_of(entry->maps.begin(), entry->maps.end(),
                                              [](const std::string& map) { return map == "All" || isMainMap(map); }))
      startScript(*entry);
}

void MapScriptManager::editorJob(const qsf::JobArguments& arguments) {
  logInfo("create MSG reciever");
  mEditorDelay += arguments.getTimePassed();
  if (mEditorDelay < qsf::Time::fromSeconds(0.1)) return;
  logInfo("Editor Mode started");
  logInfo("create MSG reciever2");
  mBlockedEntityIds.clear();
  startScriptsOfMap([](ScriptMode mode) { return mode == ScriptMode::EDITOR_STARTUP; });
  mEditorJobProxy.unregister();
}

void MapScriptManager::StartTemporaryScript(const std::string& path) {
  // Kept: one instance per known script of another path. Scripts that start others count on the number.
  const std::size_t known = mScriptEntries.size();
  for (std::size_t i = 0; i < known; ++i) {
    if (mScriptEntries[i]->path == path) continue;
    if (!mayStartAnother(path)) return;
    MapScriptEntry* entry = new MapScriptEntry;
    entry->mode = ScriptMode::TEMPORARY;
    entry->path = path;
    entry->key = path;
    entry->document = loadDocument(*entry);
    mScriptEntries.push_back(entry);
    startScript(*entry);
    logInfo("\tMapscriptManager: succesfully initialize new temproray Scenario " + path);
  }
}

/// Told once a frame: thousands of scripts may ask.
bool MapScriptManager::mayStartAnother(const std::string& path) {
  if (mScriptEntries.size() < MAXIMUM_SCRIPTS && mStartsInFrame < MAXIMUM_SCRIPTS) {
    ++mStartsInFrame;
    return true;
  }
  if (!mBoundTold)
    logError("MapscriptManager: " + std::to_string(MAXIMUM_SCRIPTS) +
             " scripts are running or were started in this frame; no further instance of " + path + " is started");
  mBoundTold = true;
  return false;
}

void MapScriptManager::stopScript(const std::string& path) {
  // Kept: the walk goes on behind the place of a removed entry, so of two neighbours with one path the second stays.
  for (std::size_t i = 0; i < mScriptEntries.size(); ++i) {
    if (mScriptEntries[i]->path != path) continue;
    ScenarioHandler::retire(std::exchange(mScriptEntries[i]->handler, nullptr));
    removeEntry(i, withOrigin("stopped by StopScenario"));
  }
}

std::pair<ScenarioHandler*, const ScenarioTrigger*> MapScriptManager::findTrigger(std::uint32_t hash) const {
  for (const MapScriptEntry* entry : mScriptEntries)
    if (entry->document)
      if (const ScenarioTrigger* trigger = entry->document->findTrigger(hash)) return {entry->handler, trigger};
  return {nullptr, nullptr};
}

void MapScriptManager::DoShutdown() {
  logInfo("DoShutdown Started");
  DebuggerWindow::destroy();
  GuiInstanceManager::destroy();
  mPreCommandMessageProxy.unregister();
  mSuitChangeGuard.switchOff();
  mBlockedEntityIds.clear();
  mMessageReciever.reset();
  CommandLine::destroy();
  ScenarioBasicGui::destroy();
  GUIEventListener::destroy();
  mSelectionJobProxy.unregister();
  // Kept: the entry behind a forgotten temporary one is skipped, and its script goes on into the next map.
  for (std::size_t i = 0; i < mScriptEntries.size(); ++i) {
    ScenarioHandler::retire(std::exchange(mScriptEntries[i]->handler, nullptr));
    if (mScriptEntries[i]->mode == ScriptMode::TEMPORARY) removeEntry(i, "ended with its map");
  }
  logInfo("DoShutdown Finished");
}

void MapScriptManager::forgetScripts() {
  while (!mScriptEntries.empty()) {
    ScenarioHandler::retire(mScriptEntries.back()->handler);
    removeEntry(mScriptEntries.size() - 1, "");
  }
}

void MapScriptManager::removeEntry(std::size_t index, const std::string& fate) {
  MapScriptEntry* entry = mScriptEntries[index];
  if (!fate.empty()) fates::noteEnded(*entry, fate);
  FiringLedger::store(*entry);
  mScriptEntries.erase(mScriptEntries.begin() + static_cast<std::ptrdiff_t>(index));
  delete entry;
}

}
