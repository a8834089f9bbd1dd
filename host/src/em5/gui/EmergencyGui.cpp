#include "em5/gui/EmergencyGui.h"

#include "GuiInput.h"
#include "qsf/Qsf.h"
#include "qsf/base/RecordedOperation.h"

namespace em5 {

namespace {

const qsf::RecordedOperation hideIngameHudCall{"em5::EmergencyGui::hideIngameHud", ""};
const qsf::RecordedOperation showIngameHudCall{"em5::EmergencyGui::showIngameHud", ""};
const qsf::RecordedOperation setMouseCursorCall{"em5::EmergencyGui::setMouseCursor", "icon"};
const qsf::RecordedOperation resetMouseCursorCall{"em5::EmergencyGui::resetMouseCursor", ""};
const qsf::RecordedOperation showMouseCursorCall{"em5::EmergencyGui::showMouseCursor", "`0` or `1`"};

}

EmergencyGui::EmergencyGui()
    : mIngameHud(std::make_unique<IngameHud>(mGuiContext)),
      mMainMenuManager(std::make_unique<MainMenuManager>(mGuiContext)),
      mLoadingScreen(std::make_unique<qsf::GuiDocument>(mGuiContext, "LoadingScreen")) {
  mLoadingScreen->loadByFilename("em5/gui/mainmenu/loading_screen.rml");
  if (const qsf::Qsf* host = qsf::Qsf::instance()) mInput = std::make_unique<GuiInput>(*this, host->getInputSystem());
}

EmergencyGui::~EmergencyGui() = default;

void EmergencyGui::startGame() {
  mIngameHud->startGame();
  mMainMenuManager->hideGui();
  mLoadingScreen->hide();
}

void EmergencyGui::hideIngameHud() {
  mIngameHud->setHidden(true);
  hideIngameHudCall.record();
}

void EmergencyGui::showIngameHud() {
  mIngameHud->setHidden(false);
  showIngameHudCall.record();
}

void EmergencyGui::setMouseCursor(const std::string& icon) {
  mMouseCursor = icon;
  setMouseCursorCall.record({icon});
}

void EmergencyGui::resetMouseCursor() {
  mMouseCursor.clear();
  resetMouseCursorCall.record();
}

void EmergencyGui::showMouseCursor(bool visible) {
  mMouseCursorVisible = visible;
  showMouseCursorCall.record({visible ? "1" : "0"});
}

}
