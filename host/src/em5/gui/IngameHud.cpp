#include "em5/gui/IngameHud.h"

namespace em5 {

IngameHud::IngameHud(qsf::GuiContext& context) {
  static constexpr std::array<const char*, WINDOW_COUNT> NAMES{
      "DebugGuiWindow",         "MiniMapWindow",          "MenuBar",
      "ObjectiveWindow",        "CommandWindow",          "UnitOverviewWindow",
      "SupervisorWindow",       "VehicleOrderWindow",     "VehicleOrderBar",
      "VehicleSelectionWindow", "SelectionWindowVehicle", "SelectionWindowCommandable",
      "WarblerFeedWindow",      "IngameMainMenuWindow",   "FullscreenVideoWindow"};
  for (std::size_t window = 0; window < WINDOW_COUNT; ++window)
    mWindows[window] = std::make_unique<qsf::GuiDocument>(context, NAMES[window]);
  // What a player sees when a game begins; the others come up on demand.
  for (const Window window : {MINI_MAP, MENU_BAR, OBJECTIVES, COMMANDS, UNIT_OVERVIEW, VEHICLE_ORDER_BAR, WARBLER_FEED})
    mWindows[window]->show();
}

IngameHud::~IngameHud() = default;

}
