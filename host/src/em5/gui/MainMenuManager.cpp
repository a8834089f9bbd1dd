#include "em5/gui/MainMenuManager.h"

namespace em5 {

namespace {

struct WindowFile {
  const char* name;
  const char* file;
};
constexpr WindowFile WINDOW_FILES[] = {
    {"MainMenuWindow", "em5/gui/mainmenu/main_menu.rml"},
    {"VideoPlayerWindow", "em5/gui/mainmenu/video_player.rml"},
    {"SelectCampaignWindow", "em5/gui/mainmenu/select_campaign.rml"},
    {"FreeplayWindow", "em5/gui/mainmenu/freeplay.rml"},
    {"BaseLayer", "em5/gui/mainmenu/base_layer.rml"},
    {"AccountStatusTitleWindow", "em5/gui/mainmenu/account_status_title.rml"},
    {"AccountStatusWindow", "em5/gui/mainmenu/account_status.rml"},
    {"StartGameWindow", "em5/gui/mainmenu/start_game.rml"},
};

}

MainMenuManager::MainMenuManager(qsf::GuiContext& context) {
  static_assert(std::size(WINDOW_FILES) == WINDOW_COUNT);
  for (std::size_t window = 0; window < WINDOW_COUNT; ++window)
    mWindows[window] = std::make_unique<qsf::GuiDocument>(context, WINDOW_FILES[window].name);
  loadGui();
}

MainMenuManager::~MainMenuManager() = default;

void MainMenuManager::loadGui() {
  for (std::size_t window = 0; window < WINDOW_COUNT; ++window)
    if (!mWindows[window]->getElementDocument()) mWindows[window]->loadByFilename(WINDOW_FILES[window].file);
}

void MainMenuManager::hideGui() {
  for (const auto& window : mWindows)
    window->hide();
}

}
