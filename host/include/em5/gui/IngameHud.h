#pragma once
#include "qsf/gui/GuiDocument.h"

#include <array>
#include <memory>
#include <string>

namespace em5 {

/// The windows that the player sees in a game. Owned by the emergency GUI and lives as long. Mini map, bars,
/// objectives, commands, unit overview and the feed are visible at first; the others come up on demand.
class QSF_API IngameHud {
public:
  explicit IngameHud(qsf::GuiContext& context);
  ~IngameHud();

  /// Never null.
  qsf::GuiDocument* getDebugGuiWindow() const { return getWindow(DEBUG_GUI); }
  qsf::GuiDocument* getMiniMapWindow() const { return getWindow(MINI_MAP); }
  qsf::GuiDocument* getMenuBar() const { return getWindow(MENU_BAR); }
  qsf::GuiDocument* getObjectiveWindow() const { return getWindow(OBJECTIVES); }
  qsf::GuiDocument* getCommandWindow() const { return getWindow(COMMANDS); }
  qsf::GuiDocument* getUnitOverviewWindow() const { return getWindow(UNIT_OVERVIEW); }
  qsf::GuiDocument* getSupervisorWindow() const { return getWindow(SUPERVISOR); }
  qsf::GuiDocument* getVehicleOrderWindow() const { return getWindow(VEHICLE_ORDER_WINDOW); }
  qsf::GuiDocument* getVehicleOrderBar() const { return getWindow(VEHICLE_ORDER_BAR); }
  qsf::GuiDocument* getVehicleSelectionWindow() const { return getWindow(VEHICLE_SELECTION); }
  qsf::GuiDocument* getSelectionWindowVehicle() const { return getWindow(SELECTION_VEHICLE); }
  qsf::GuiDocument* getSelectionWindowCommandable() const { return getWindow(SELECTION_COMMANDABLE); }
  qsf::GuiDocument* getWarblerFeedWindow() const { return getWindow(WARBLER_FEED); }
  qsf::GuiDocument* getIngameMainMenuWindow() const { return getWindow(MAIN_MENU); }
  qsf::GuiDocument* getFullscreenVideoWindow() const { return getWindow(FULLSCREEN_VIDEO); }

  /// Hides the whole HUD, or shows those windows again that were visible.
  void hideGui() { mHidden = true; }
  void showGui() { mHidden = false; }
  bool isHidden() const { return mHidden; }

private:
  enum Window {
    DEBUG_GUI,
    MINI_MAP,
    MENU_BAR,
    OBJECTIVES,
    COMMANDS,
    UNIT_OVERVIEW,
    SUPERVISOR,
    VEHICLE_ORDER_WINDOW,
    VEHICLE_ORDER_BAR,
    VEHICLE_SELECTION,
    SELECTION_VEHICLE,
    SELECTION_COMMANDABLE,
    WARBLER_FEED,
    MAIN_MENU,
    FULLSCREEN_VIDEO,
    WINDOW_COUNT
  };
  qsf::GuiDocument* getWindow(Window window) const { return mWindows[window].get(); }

  std::array<std::unique_ptr<qsf::GuiDocument>, WINDOW_COUNT> mWindows;
  bool mHidden = false;
};

}
