#include "game_plugin/gui/DebuggerWindow.h"

#include "game_plugin/component/MP_LOG_COMPONENT.h"
#include "game_plugin/gui/DebuggerText.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "Rocket/Core.h"
#include "em5/base/Jobs.h"
#include "em5/game/Game.h"
#include "em5/gui/EmergencyGui.h"
#include "em5/map/MapHelper.h"
#include "qsf/Qsf.h"
#include "qsf/component/MeshComponent.h"
#include "qsf/game/SelectableComponent.h"
#include "qsf/map/Map.h"

#include <algorithm>
#include <sstream>

namespace script {

namespace {

using Rocket::Core::Element;

constexpr const char* SHOWN = "display:inline;";
constexpr const char* HIDDEN = "display:none;";
constexpr const char* DEBUG_ELEMENTS[] = {"debug_text", "debug_text2", "debug_text3"};
constexpr const char* MENU_BUTTONS[] = {"reload_scripts", "show_ms_debug"};

DebuggerWindow* theWindow = nullptr;

Element* findMenuButton(const char* id) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  em5::IngameHud* hud = gui ? gui->getIngameHud() : nullptr;
  return hud ? hud->getIngameMainMenuWindow()->findElementById(id) : nullptr;
}

template <class Number> bool readNumber(const std::string& text, Number& number) {
  std::istringstream stream(text);
  return static_cast<bool>(stream >> number);
}

}

DebuggerWindow::DebuggerWindow(qsf::GuiContext& context) : GuiDocument(context) {
  if (!loadByFilename(FILE_NAME)) {
    logInfo("DebuggerWindow: cant loat the file \"DebuggerWindow\"");
    return;
  }
  mJobProxy.registerAt(em5::Jobs::REALTIME_GUI_DEBUG, [this](const qsf::JobArguments&) { update(); });
  readCadence();
}

DebuggerWindow::~DebuggerWindow() {
  for (const char* id : MENU_BUTTONS)
    if (Element* button = findMenuButton(id)) button->RemoveEventListener("click", this);
  mJobProxy.unregister();
  unload();
  if (theWindow == this) theWindow = nullptr;
}

DebuggerWindow* DebuggerWindow::get() { return theWindow; }

void DebuggerWindow::startUp() {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (!gui) return;
  if (!theWindow) theWindow = new DebuggerWindow(gui->getGuiContext());
  theWindow->listenToMainMenu();
  theWindow->hide();
  theWindow->refreshScriptList();
}

void DebuggerWindow::destroy() { delete std::exchange(theWindow, nullptr); } // its end fires events

void DebuggerWindow::listenToMainMenu() {
  for (const char* id : MENU_BUTTONS)
    if (Element* button = findMenuButton(id)) button->AddEventListener("click", this);
}

/// Seconds between two updates, as authors write them in the file.
void DebuggerWindow::readCadence() {
  constexpr float USUAL_SECONDS = 0.5f;
  const Element* element = findElementById("update_time");
  if (!element) return;
  float seconds = 0;
  if (!readNumber(element->GetInnerRML(), seconds)) seconds = USUAL_SECONDS;
  mJobProxy.changeTimeBetweenCalls(qsf::Time::fromSeconds(static_cast<double>(seconds)));
}

void DebuggerWindow::write(const std::string& elementId, const std::string& rml) {
  if (Element* element = findElementById(elementId)) element->SetInnerRML(rml);
}

void DebuggerWindow::setStyle(const std::string& elementId, const std::string& style) {
  if (Element* element = findElementById(elementId)) element->SetAttribute("style", style);
}

void DebuggerWindow::refreshScriptList() {
  if (const MapScriptManager* manager = MapScriptManager::get())
    write("debug_text", scriptListRml(manager->getScriptEntries()));
}

void DebuggerWindow::update() {
  if (!isVisible()) return;
  if (mLoggerView)
    writePlayerLogs();
  else if (mSelectedScript != NO_SCRIPT)
    writePickedScript();
}

void DebuggerWindow::pickScript(const std::string& number) {
  mSelectedTrigger = NO_TRIGGER;
  mPicked.reset();
  if (!readNumber(number, mSelectedScript)) mSelectedScript = NO_SCRIPT;
  const MapScriptManager* manager = MapScriptManager::get();
  if (manager && mSelectedScript < manager->getScriptEntries().size())
    mPicked = manager->getScriptEntries()[mSelectedScript]->document;
}

/// Null once the script has gone, also if another one has its number now.
const MapScriptEntry* DebuggerWindow::findPickedScript() const {
  const MapScriptManager* manager = MapScriptManager::get();
  const std::shared_ptr<ScriptDocument> picked = mPicked.lock();
  if (!manager || !picked) return nullptr;
  const auto& entries = manager->getScriptEntries();
  const auto found = std::ranges::find(entries, picked, &MapScriptEntry::document);
  return found == entries.end() ? nullptr : *found;
}

void DebuggerWindow::writePickedScript() {
  const MapScriptEntry* entry = findPickedScript();
  if (!entry) return;
  const ScriptDocument& document = *entry->document;
  if (!mTexts || mTexts->program() != document.program) mTexts = std::make_unique<EntryTexts>(document.program);
  write("debug_text2", triggersRml(document, *mTexts, mSelectedTrigger));
  if (entry->handler) write("debug_text3", variablesRml(*entry->handler));
}

void DebuggerWindow::writePlayerLogs() {
  const qsf::Entity* core = findEntity(qsf::Map::CORE_ENTITY_ID);
  const auto* log = core ? core->getComponent<MP_LOG_COMPONENT>() : nullptr;
  if (!log) return;
  write("log_player_all", playerLogRml("Mixed Player Log: <br/><br/>", log->getMixedLines()));
  for (int player = 0; player < MP_LOG_COMPONENT::NUMBER_OF_PLAYERS; ++player) {
    const std::string number = std::to_string(player + 1);
    write("log_player" + number, playerLogRml("Player " + number + " Log: <br/><br/>", log->getLines(player)));
  }
}

void DebuggerWindow::processEvent(const std::string& name, Rocket::Core::Event& event) {
  const Element* target = event.GetTargetElement();
  const std::string id = target ? std::string(target->GetId()) : std::string();
  if (name == "entityselected")
    selectEntity(id);
  else if (name == "close")
    hide();
  else if (name == "script")
    pickScript(id);
  else if (name == "triggerinfo")
    mSelectedTrigger = mSelectedTrigger == id ? NO_TRIGGER : id;
  else if (name == "debug")
    showDebugView();
  else if (name == "MP_Logger")
    showLoggerView();
}

void DebuggerWindow::selectEntity(const std::string& idText) {
  std::uint64_t id = 0;
  const qsf::UniqueInstance<em5::Game> game;
  const qsf::Entity* entity = readNumber(idText, id) ? findEntity(id) : nullptr;
  if (!game || !entity) return;
  if (entity->getComponent<qsf::game::SelectableComponent>()) {
    game->getSelectionManager()->clearSelection();
    game->getSelectionManager()->addIdToSelection(id);
  }
  if (entity->getComponent<qsf::MeshComponent>())
    em5::MapHelper(qsf::getMainMap()).flyCameraToEntity(*entity, *game->getPlayerManager()->getLocalPlayer());
}

void DebuggerWindow::showDebugView() {
  mLoggerView = false;
  for (const char* id : DEBUG_ELEMENTS)
    setStyle(id, SHOWN);
  for (const char* id : {"log_player1", "log_player_all", "log_player3", "log_player4", "log_player2"})
    setStyle(id, HIDDEN);
}

/// A column for each player and one for all.
void DebuggerWindow::showLoggerView() {
  mLoggerView = true;
  const qsf::UniqueInstance<em5::Game> game;
  const int players = game ? static_cast<int>(game->getPlayerManager()->getAllPlayers().size()) : 0;
  const int share = 100 / (players + 1);
  const std::string width = "width:" + std::to_string(share - 1) + "%;";
  for (const char* id : DEBUG_ELEMENTS)
    setStyle(id, HIDDEN);
  setStyle("log_player1", SHOWN + width);
  int left = 0;
  const auto place = [&](const std::string& id) {
    if (!findElementById(id)) return;
    left += share;
    setStyle(id, SHOWN + width + "left:" + std::to_string(left + 1) + "%;");
  };
  for (int player = 2; player <= std::min(players, MP_LOG_COMPONENT::NUMBER_OF_PLAYERS); ++player)
    place("log_player" + std::to_string(player));
  place("log_player_all");
}

void DebuggerWindow::ProcessEvent(Rocket::Core::Event& event) {
  const Element* target = event.GetTargetElement();
  const std::string id = target ? std::string(target->GetId()) : std::string();
  if (id == "show_ms_debug" || id == "show_ms_debug2") return show();
  if (id == "reload_scripts" || id == "reload_scripts2") return MapScriptManager::reloadInGame(); // this is gone then
}

}
