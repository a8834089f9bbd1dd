#include "em5/gui/EmergencyGui.h"

#include "qsf/Qsf.h"
#include "qsf/base/CallRecorder.h"

namespace em5 {

namespace {

void record(const std::string& operation, std::vector<std::string> arguments = {}) {
  qsf::Qsf::instance()->getCallRecorder().record("em5::EmergencyGui::" + operation, std::move(arguments));
}

}

EmergencyGui::EmergencyGui() : mIngameHud(std::make_unique<IngameHud>(mGuiContext)) {}

EmergencyGui::~EmergencyGui() = default;

void EmergencyGui::hideIngameHud() {
  mIngameHud->hideGui();
  record("hideIngameHud");
}

void EmergencyGui::showIngameHud() {
  mIngameHud->showGui();
  record("showIngameHud");
}

void EmergencyGui::setMouseCursor(const std::string& icon) {
  mMouseCursor = icon;
  record("setMouseCursor", {icon});
}

void EmergencyGui::resetMouseCursor() {
  mMouseCursor.clear();
  record("resetMouseCursor");
}

void EmergencyGui::showMouseCursor(bool visible) {
  mMouseCursorVisible = visible;
  record("showMouseCursor", {visible ? "1" : "0"});
}

}
