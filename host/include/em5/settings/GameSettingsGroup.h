#pragma once
#include "qsf/base/UniqueInstance.h"

#include <string>

namespace em5 {

/// What the player has set, and what is taken out of the player's hands. Owned by the host session. Each setter that
/// blocks something is noted in the call recorder; nothing changes back by itself.
class QSF_API GameSettingsGroup : public qsf::UniqueInstanceTarget<GameSettingsGroup> {
public:
  /// Empty without an account.
  const std::string& getSavedAccountname() const { return mSavedAccountname; }
  void setSavedAccountname(const std::string& name) { mSavedAccountname = name; }

  /// How often a second the host of a session tells the clients what has changed of what they keep alike: 5, 10 or 20.
  /// Another number changes nothing. The host's data cache reads it in each frame; clients take what comes.
  unsigned int getMultiplayUpdatesPerSecond() const { return mMultiplayUpdatesPerSecond; }
  void setMultiplayUpdatesPerSecond(unsigned int updates);

  /// Orders and the selection of units.
  bool isInputBlocked() const { return mInputBlocked; }
  void setInputBlocked(bool blocked);
  bool isInputCameraMoveBlocked() const { return mInputCameraMoveBlocked; }
  void setInputCameraMoveBlocked(bool blocked);
  bool isInputCameraRotateBlocked() const { return mInputCameraRotateBlocked; }
  void setInputCameraRotateBlocked(bool blocked);
  bool isInputCameraZoomBlocked() const { return mInputCameraZoomBlocked; }
  void setInputCameraZoomBlocked(bool blocked);

private:
  std::string mSavedAccountname;
  unsigned int mMultiplayUpdatesPerSecond = 10;
  bool mInputBlocked = false;
  bool mInputCameraMoveBlocked = false;
  bool mInputCameraRotateBlocked = false;
  bool mInputCameraZoomBlocked = false;
};

}
