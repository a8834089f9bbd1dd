#pragma once
#include "qsf/audio/AudioManager.h"
#include "qsf/audio/AudioSettingsGroup.h"

namespace qsf {

/// Sounds. Owned by Qsf.
class QSF_API AudioSystem {
public:
  AudioManager& getAudioManager() { return mAudioManager; }

private:
  AudioSettingsGroup mSettings;
  AudioManager mAudioManager;
};

}
