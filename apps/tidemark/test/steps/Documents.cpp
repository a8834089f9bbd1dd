#include "apps/tidemark/test/steps/Documents.h"

#include "apps/tidemark/test/TestSession.h"

#include "Rocket/Core/Element.h"
#include "em5/gui/EmergencyGui.h"
#include "qsf/gui/GuiDocument.h"

#include <fmt/format.h>

#include <limits>

namespace tidemark::test {

namespace {

using Accessor = qsf::GuiDocument* (*)(const em5::EmergencyGui&);

template <auto ACCESSOR> qsf::GuiDocument* ofHud(const em5::EmergencyGui& gui) {
  return gui.getIngameHud() ? (gui.getIngameHud()->*ACCESSOR)() : nullptr;
}
template <auto ACCESSOR> qsf::GuiDocument* ofMenu(const em5::EmergencyGui& gui) {
  return gui.getMainMenuManager() ? (gui.getMainMenuManager()->*ACCESSOR)() : nullptr;
}
qsf::GuiDocument* droneOf(const em5::EmergencyGui& gui) {
  return gui.getIngameHud() ? gui.getIngameHud()->getSEKDroneScanWindow() : nullptr;
}
qsf::GuiDocument* loadingScreenOf(const em5::EmergencyGui& gui) { return gui.getLoadingScreen(); }

using Hud = em5::IngameHud;
using Menu = em5::MainMenuManager;

struct GameDocument {
  std::string_view name;
  Accessor find;
};
constexpr GameDocument GAME_DOCUMENTS[] = {
    {"GUIDOC_MainMenuWindow", ofMenu<&Menu::getMainMenuWindow>},
    {"GUIDOC_SelectionWindowCommandable", ofHud<&Hud::getSelectionWindowCommandable>},
    {"GUIDOC_SelectionWindowVehicle", ofHud<&Hud::getSelectionWindowVehicle>},
    {"GUIDOC_SelectionWindowMulti", ofHud<&Hud::getSelectionWindowVehicle>},
    {"GUIDOC_Minimap", ofHud<&Hud::getMiniMapWindow>},
    {"GUIDOC_CommandWindow", ofHud<&Hud::getCommandWindow>},
    {"GUIDOC_MenuBar", ofHud<&Hud::getMenuBar>},
    {"GUIDOC_ObjectiveWindow", ofHud<&Hud::getObjectiveWindow>},
    {"GUIDOC_SupervisorWindow", ofHud<&Hud::getSupervisorWindow>},
    {"GUIDOC_UnitOverviewWindow", ofHud<&Hud::getUnitOverviewWindow>},
    {"GUIDOC_VehicleOrderBar", ofHud<&Hud::getVehicleOrderBar>},
    {"GUIDOC_VehicleOrderWindow", ofHud<&Hud::getVehicleOrderWindow>},
    {"GUIDOC_VehicleSelectionWindow", ofHud<&Hud::getVehicleSelectionWindow>},
    {"GUIDOC_WarblerFeedWindow", ofHud<&Hud::getWarblerFeedWindow>},
    {"GUIDOC_MainMenu_VideoPlayerWindow", ofMenu<&Menu::getVideoPlayerWindow>},
    {"GUIDOC_FullscreenVideoWindow", ofHud<&Hud::getFullscreenVideoWindow>},
    {"GUIDOC_MainMenu_SelectCampaign", ofMenu<&Menu::getSelectCampaignWindow>},
    {"GUIDOC_MainMenu_FreeplayWindow", ofMenu<&Menu::getFreeplayWindow>},
    {"GUIDOC_MainMenu_BaseLayer", ofMenu<&Menu::getBaseLayer>},
    {"GUIDOC_MainMenu_AccountStatusTitle", ofMenu<&Menu::getAccountStatusTitleWindow>},
    {"GUIDOC_MainMenu_AccountInfo", ofMenu<&Menu::getAccountStatusWindow>},
    {"GUIDOC_LoadingScreen", loadingScreenOf},
    {"GUIDOC_STARTGAME", ofMenu<&Menu::getStartGameWindow>},
    {"mainmenu_ingame", ofHud<&Hud::getIngameMainMenuWindow>},
    {"drone", droneOf},
    {"debug_gui", ofHud<&Hud::getDebugGuiWindow>},
};

/// Behind the last `/` stands a child's number: cuts it off and gives it, or nothing.
std::optional<int> takeChildNumber(std::string& element) {
  const std::size_t slash = element.rfind('/');
  if (slash == std::string::npos || slash == 0) return std::nullopt;
  const auto number = parseId(std::string_view(element).substr(slash + 1));
  if (!number || *number > static_cast<std::uint64_t>(std::numeric_limits<int>::max())) return std::nullopt;
  element.resize(slash);
  return static_cast<int>(*number);
}

}

qsf::GuiDocument* findDocument(const TestSession& session, const std::string& name) {
  for (const GameDocument& document : GAME_DOCUMENTS) {
    if (document.name != name) continue;
    const qsf::UniqueInstance<em5::EmergencyGui> gui;
    return gui ? document.find(*gui) : nullptr;
  }
  return session.tooling().findDocument(name);
}

ElementReference takeElementReference(WordCursor& words) {
  ElementReference reference;
  reference.document = words.take("the document");
  reference.element = words.take("the element's id");
  return reference;
}

Rocket::Core::Element* findElement(const qsf::GuiDocument& document, const std::string& element) {
  if (Rocket::Core::Element* found = document.findElementById(element)) return found;
  std::string parent = element;
  const std::optional<int> child = takeChildNumber(parent);
  Rocket::Core::Element* found = child ? findElement(document, parent) : nullptr;
  return found ? found->GetChild(*child) : nullptr;
}

Rocket::Core::Element& requireElement(const TestSession& session, const ElementReference& reference) {
  const qsf::GuiDocument* document = findDocument(session, reference.document);
  if (!document) throw NotThere(fmt::format("there is no document '{}'", reference.document));
  Rocket::Core::Element* element = findElement(*document, reference.element);
  if (!element) throw NotThere(fmt::format("'{}' has no element '{}'", reference.document, reference.element));
  return *element;
}

bool isElementVisible(const TestSession& session, const ElementReference& reference) {
  const Rocket::Core::Element& element = requireElement(session, reference);
  return findDocument(session, reference.document)->isVisible() && element.IsDisplayed();
}

}
