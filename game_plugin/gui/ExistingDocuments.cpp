// The names under which scripts know the documents of the game.
#include "game_plugin/gui/GUIEventListener.h"

#include "em5/gui/EmergencyGui.h"
#include "em5/gui/IngameHud.h"
#include "em5/gui/MainMenuManager.h"

#include <string_view>

namespace script {

namespace {

using em5::EmergencyGui;
using em5::IngameHud;
using em5::MainMenuManager;

template <qsf::GuiDocument* (IngameHud::*window)() const> qsf::GuiDocument* ofHud(const EmergencyGui& gui) {
  const IngameHud* hud = gui.getIngameHud();
  return hud ? (hud->*window)() : nullptr;
}

template <qsf::GuiDocument* (MainMenuManager::*window)() const> qsf::GuiDocument* ofMenu(const EmergencyGui& gui) {
  const MainMenuManager* menu = gui.getMainMenuManager();
  return menu ? (menu->*window)() : nullptr;
}

struct Name {
  std::string_view name;
  qsf::GuiDocument* (*find)(const EmergencyGui& gui);
};

const Name NAMES[] = {
    {"GUIDOC_MainMenuWindow", ofMenu<&MainMenuManager::getMainMenuWindow>},
    {"GUIDOC_SelectionWindowCommandable", ofHud<&IngameHud::getSelectionWindowCommandable>},
    {"GUIDOC_SelectionWindowVehicle", ofHud<&IngameHud::getSelectionWindowVehicle>},
    {"GUIDOC_SelectionWindowMulti", ofHud<&IngameHud::getSelectionWindowVehicle>}, // kept: the game has no other
    {"GUIDOC_Minimap", ofHud<&IngameHud::getMiniMapWindow>},
    {"GUIDOC_CommandWindow", ofHud<&IngameHud::getCommandWindow>},
    {"GUIDOC_MenuBar", ofHud<&IngameHud::getMenuBar>},
    {"GUIDOC_ObjectiveWindow", ofHud<&IngameHud::getObjectiveWindow>},
    {"GUIDOC_SupervisorWindow", ofHud<&IngameHud::getSupervisorWindow>},
    {"GUIDOC_UnitOverviewWindow", ofHud<&IngameHud::getUnitOverviewWindow>},
    {"GUIDOC_VehicleOrderBar", ofHud<&IngameHud::getVehicleOrderBar>},
    {"GUIDOC_VehicleOrderWindow", ofHud<&IngameHud::getVehicleOrderWindow>},
    {"GUIDOC_VehicleSelectionWindow", ofHud<&IngameHud::getVehicleSelectionWindow>},
    {"GUIDOC_WarblerFeedWindow", ofHud<&IngameHud::getWarblerFeedWindow>},
    {"GUIDOC_MainMenu_VideoPlayerWindow", ofMenu<&MainMenuManager::getVideoPlayerWindow>},
    {"GUIDOC_FullscreenVideoWindow", ofHud<&IngameHud::getFullscreenVideoWindow>},
    {"GUIDOC_MainMenu_SelectCampaign", ofMenu<&MainMenuManager::getSelectCampaignWindow>},
    {"GUIDOC_MainMenu_FreeplayWindow", ofMenu<&MainMenuManager::getFreeplayWindow>},
    {"GUIDOC_MainMenu_BaseLayer", ofMenu<&MainMenuManager::getBaseLayer>},
    {"GUIDOC_MainMenu_AccountStatusTitle", ofMenu<&MainMenuManager::getAccountStatusTitleWindow>},
    {"GUIDOC_MainMenu_AccountInfo", ofMenu<&MainMenuManager::getAccountStatusWindow>},
    {"GUIDOC_LoadingScreen", [](const EmergencyGui& gui) { return gui.getLoadingScreen(); }},
    {"GUIDOC_STARTGAME", ofMenu<&MainMenuManager::getStartGameWindow>},
};

}

qsf::GuiDocument* GUIEventListener::findDocument(const std::string& name) {
  const qsf::UniqueInstance<EmergencyGui> gui;
  if (!gui) return nullptr;
  for (const Name& known : NAMES)
    if (known.name == name) return known.find(*gui);
  return nullptr;
}

Rocket::Core::ElementDocument* GUIEventListener::findElementDocument(const std::string& name) {
  const qsf::GuiDocument* document = findDocument(name);
  return document ? document->getElementDocument() : nullptr;
}

}
