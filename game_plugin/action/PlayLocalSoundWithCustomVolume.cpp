#include "game_plugin/action/PlayLocalSoundWithCustomVolume.h"

#include "qsf/audio/AudioSettingsGroup.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/PropertyText.h"

namespace script {

namespace {

constexpr const char* ENDING = ".ogg";
/// What sounds of scripts are at full volume, beside those of the game.
constexpr float LOUDEST = 0.6f;

std::string toText(float value) { return qsf::toText(static_cast<double>(value)); }

}

void PlayLocalSoundWithCustomVolume::declareCamp() {
  camp::Class::declare<PlayLocalSoundWithCustomVolume>("script::PlayLocalSoundWithCustomVolume")
      .tag("Name", "script::PlayLocalSoundWithCustomVolume")
      .tag("Description", "script::PlayLocalSoundWithCustomVolume")
      .base<Action>()
      .constructor0();
}

PlayLocalSoundWithCustomVolume::~PlayLocalSoundWithCustomVolume() {
  if (!mWaitForFinish && !mPlayInLoop) return;
  mAudioProxy.stop();
  mAudioProxy.detach();
  mAudioProxy.synchronizeWithMultiplay(false);
}

void PlayLocalSoundWithCustomVolume::init(const std::string& sourceFile, float volume, float referenceDistance,
                                          float maximumDistance, bool playInLoop, bool waitForFinish) {
  mSourceFile = sourceFile;
  mVolume = volume;
  mReferenceDistance = referenceDistance;
  mMaximumDistance = maximumDistance;
  mPlayInLoop = playInLoop;
  mWaitForFinish = waitForFinish;
}

qsf::action::Description PlayLocalSoundWithCustomVolume::describe() const {
  return {{"file", mSourceFile},
          {"volume", toText(mVolume)},
          {"reference", toText(mReferenceDistance)},
          {"maximum", toText(mMaximumDistance)},
          {"loop", mPlayInLoop ? "1" : "0"},
          {"wait", mWaitForFinish ? "1" : "0"}};
}

qsf::action::Result PlayLocalSoundWithCustomVolume::updateAction(const qsf::Clock&) {
  if (mState == State::PLAYING)
    return mAudioProxy.isPlaying() && mWaitForFinish ? qsf::action::RESULT_CONTINUE : qsf::action::RESULT_DONE;
  play();
  mState = State::PLAYING;
  return qsf::action::RESULT_CONTINUE;
}

void PlayLocalSoundWithCustomVolume::play() {
  // Kept: the ending is looked for anywhere, so that "x.ogg.bak" has it.
  const bool hasEnding = mSourceFile.find(ENDING) != std::string::npos;
  mAudioProxy.setSourceFile(hasEnding ? mSourceFile : mSourceFile + ENDING);
  mAudioProxy.setSpatial(true);
  mAudioProxy.setContextEntity(&getEntity());
  mAudioProxy.setReferenceDistance(mReferenceDistance);
  mAudioProxy.setMaximumDistance(mMaximumDistance);
  mAudioProxy.setLoop(mPlayInLoop);
  const qsf::UniqueInstance<qsf::AudioSettingsGroup> mixer;
  mAudioProxy.setVolume(mVolume * (mixer ? mixer->getMixerChannelSFXVolume() : 1.0f) * LOUDEST);
  mAudioProxy.play();
  mAudioProxy.synchronizeWithMultiplay(false);
}

}
