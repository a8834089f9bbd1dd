#pragma once
#include "qsf/base/UniqueInstance.h"

namespace qsf {

/// The player's mixer, channels from 0 to 1, all at 1 at first. Owned by the audio system.
class QSF_API AudioSettingsGroup : public UniqueInstanceTarget<AudioSettingsGroup> {
public:
  float getMixerChannelSFXVolume() const { return mSfxVolume; }
  void setMixerChannelSFXVolume(float volume) { mSfxVolume = volume; }
  float getMixerChannelMusicVolume() const { return mMusicVolume; }
  void setMixerChannelMusicVolume(float volume) { mMusicVolume = volume; }

private:
  float mSfxVolume = 1.0f;
  float mMusicVolume = 1.0f;
};

}
