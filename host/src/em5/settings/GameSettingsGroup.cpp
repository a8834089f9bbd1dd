#include "em5/settings/GameSettingsGroup.h"

#include "qsf/base/RecordedOperation.h"

namespace em5 {

namespace {

constexpr const char* FLAG = "`0` or `1`";
const qsf::RecordedOperation setInputBlockedCall{"em5::GameSettingsGroup::setInputBlocked", FLAG};
const qsf::RecordedOperation setInputCameraMoveBlockedCall{"em5::GameSettingsGroup::setInputCameraMoveBlocked", FLAG};
const qsf::RecordedOperation setInputCameraRotateBlockedCall{"em5::GameSettingsGroup::setInputCameraRotateBlocked",
                                                             FLAG};
const qsf::RecordedOperation setInputCameraZoomBlockedCall{"em5::GameSettingsGroup::setInputCameraZoomBlocked", FLAG};

void set(bool& setting, bool value, const qsf::RecordedOperation& call) {
  setting = value;
  call.record({value ? "1" : "0"});
}

}

void GameSettingsGroup::setMultiplayUpdatesPerSecond(unsigned int updates) {
  if (updates == 5 || updates == 10 || updates == 20) mMultiplayUpdatesPerSecond = updates;
}

void GameSettingsGroup::setInputBlocked(bool blocked) { set(mInputBlocked, blocked, setInputBlockedCall); }

void GameSettingsGroup::setInputCameraMoveBlocked(bool blocked) {
  set(mInputCameraMoveBlocked, blocked, setInputCameraMoveBlockedCall);
}

void GameSettingsGroup::setInputCameraRotateBlocked(bool blocked) {
  set(mInputCameraRotateBlocked, blocked, setInputCameraRotateBlockedCall);
}

void GameSettingsGroup::setInputCameraZoomBlocked(bool blocked) {
  set(mInputCameraZoomBlocked, blocked, setInputCameraZoomBlockedCall);
}

}
