#pragma once
#include "qsf/gui/GuiDocument.h"

#include <array>
#include <memory>

namespace em5 {

/// The windows of the main menu. Owned by the emergency GUI and lives as long. Hidden at first.
class QSF_API MainMenuManager {
public:
  explicit MainMenuManager(qsf::GuiContext& context);
  ~MainMenuManager();

  /// Never null.
  qsf::GuiDocument* getMainMenuWindow() const { return getWindow(MAIN_MENU); }
  qsf::GuiDocument* getVideoPlayerWindow() const { return getWindow(VIDEO_PLAYER); }
  qsf::GuiDocument* getSelectCampaignWindow() const { return getWindow(SELECT_CAMPAIGN); }
  qsf::GuiDocument* getFreeplayWindow() const { return getWindow(FREEPLAY); }
  qsf::GuiDocument* getBaseLayer() const { return getWindow(BASE_LAYER); }
  qsf::GuiDocument* getAccountStatusTitleWindow() const { return getWindow(ACCOUNT_STATUS_TITLE); }
  qsf::GuiDocument* getAccountStatusWindow() const { return getWindow(ACCOUNT_STATUS); }
  qsf::GuiDocument* getStartGameWindow() const { return getWindow(START_GAME); }

  /// Reads those windows whose RML isn't there; they are read when the manager is made, too.
  void loadGui();
  /// Hides all windows; what they hold stays.
  void hideGui();

private:
  enum Window {
    MAIN_MENU,
    VIDEO_PLAYER,
    SELECT_CAMPAIGN,
    FREEPLAY,
    BASE_LAYER,
    ACCOUNT_STATUS_TITLE,
    ACCOUNT_STATUS,
    START_GAME,
    WINDOW_COUNT
  };
  qsf::GuiDocument* getWindow(Window window) const { return mWindows[window].get(); }

  std::array<std::unique_ptr<qsf::GuiDocument>, WINDOW_COUNT> mWindows;
};

}
