#pragma once
#include "em5/gui/SEKDroneScanWindow.h"
#include "qsf/gui/GuiDocument.h"

#include <array>
#include <memory>
#include <vector>

namespace em5 {

/// The windows that the player sees in a game. Owned by the emergency GUI and lives as long. All are visible when a
/// game starts but the debugging window, the ingame main menu and the drone's window.
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
  SEKDroneScanWindow* getSEKDroneScanWindow() const { return mDroneScanWindow.get(); }

  /// Hides the windows that are visible and keeps them, or shows those again. Each call is noted in the call recorder.
  void hideGui();
  void showGui();
  bool isHidden() const { return mHidden; }

  /// For the host: the same without a note.
  void setHidden(bool hidden);
  /// For the host: a game starts.
  void startGame();

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
  std::vector<qsf::GuiDocument*> getAllWindows() const;

  std::array<std::unique_ptr<qsf::GuiDocument>, WINDOW_COUNT> mWindows;
  std::unique_ptr<SEKDroneScanWindow> mDroneScanWindow;
  std::vector<qsf::GuiDocument*> mHiddenWindows; ///< those that showGui shows again
  bool mHidden = false;
};

}
