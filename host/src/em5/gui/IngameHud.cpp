#include "em5/gui/IngameHud.h"

#include "qsf/base/RecordedOperation.h"

namespace em5 {

namespace {

const qsf::RecordedOperation hideGuiCall{"em5::IngameHud::hideGui", ""};
const qsf::RecordedOperation showGuiCall{"em5::IngameHud::showGui", ""};

struct WindowFile {
  const char* name;
  const char* file;
};
constexpr WindowFile WINDOW_FILES[] = {
    {"DebugGuiWindow", "em5/gui/debug/debug_gui.rml"},
    {"MiniMapWindow", "em5/gui/ingamehud/minimap.rml"},
    {"MenuBar", "em5/gui/ingamehud/menu_bar.rml"},
    {"ObjectiveWindow", "em5/gui/ingamehud/objectives.rml"},
    {"CommandWindow", "em5/gui/ingamehud/commands.rml"},
    {"UnitOverviewWindow", "em5/gui/ingamehud/unit_overview.rml"},
    {"SupervisorWindow", "em5/gui/ingamehud/supervisor.rml"},
    {"VehicleOrderWindow", "em5/gui/ingamehud/vehicle_order_window.rml"},
    {"VehicleOrderBar", "em5/gui/ingamehud/vehicle_order_bar.rml"},
    {"VehicleSelectionWindow", "em5/gui/ingamehud/vehicle_selection.rml"},
    {"SelectionWindowVehicle", "em5/gui/ingamehud/selection_vehicle.rml"},
    {"SelectionWindowCommandable", "em5/gui/ingamehud/selection_commandable.rml"},
    {"WarblerFeedWindow", "em5/gui/ingamehud/warbler_feed.rml"},
    {"IngameMainMenuWindow", "em5/gui/ingamehud/main_menu.rml"},
    {"FullscreenVideoWindow", "em5/gui/ingamehud/fullscreen_video.rml"},
};

}

IngameHud::IngameHud(qsf::GuiContext& context) {
  static_assert(std::size(WINDOW_FILES) == WINDOW_COUNT);
  for (std::size_t window = 0; window < WINDOW_COUNT; ++window) {
    mWindows[window] = std::make_unique<qsf::GuiDocument>(context, WINDOW_FILES[window].name);
    mWindows[window]->loadByFilename(WINDOW_FILES[window].file);
  }
  mDroneScanWindow = std::make_unique<SEKDroneScanWindow>(context);
  startGame();
}

IngameHud::~IngameHud() = default;

std::vector<qsf::GuiDocument*> IngameHud::getAllWindows() const {
  std::vector<qsf::GuiDocument*> windows;
  for (const auto& window : mWindows)
    windows.push_back(window.get());
  windows.push_back(mDroneScanWindow.get());
  return windows;
}

void IngameHud::startGame() {
  mHidden = false;
  mHiddenWindows.clear();
  for (qsf::GuiDocument* window : getAllWindows())
    window->setVisible(window != getDebugGuiWindow() && window != getIngameMainMenuWindow() &&
                       window != getSEKDroneScanWindow());
  mDroneScanWindow->removeCamera();
}

void IngameHud::hideGui() {
  hideGuiCall.record();
  setHidden(true);
}

void IngameHud::showGui() {
  showGuiCall.record();
  setHidden(false);
}

void IngameHud::setHidden(bool hidden) {
  if (mHidden == hidden) return;
  mHidden = hidden;
  if (!hidden) {
    for (qsf::GuiDocument* window : std::exchange(mHiddenWindows, {}))
      window->show();
    return;
  }
  for (qsf::GuiDocument* window : getAllWindows()) {
    if (!window->isVisible()) continue;
    mHiddenWindows.push_back(window);
    window->hide();
  }
}

}
