#include "em5/action/PlayAudioAction.h"

#include "qsf/audio/AudioSettingsGroup.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

namespace em5 {

static const qsf::DeclaredClass<PlayAudioAction> declared;

void PlayAudioAction::declareCamp() {
  camp::Class::declare<PlayAudioAction>("em5::PlayAudioAction").base<Action>().constructor0();
}

void PlayAudioAction::init(const std::string& file, const qsf::Entity* contextEntity, bool spatial, bool loop,
                           bool waitForFinish, std::optional<qsf::Time> timeLimit, bool synchronize) {
  mAudioProxy.setSourceFile(file);
  mAudioProxy.setContextEntity(contextEntity);
  mAudioProxy.setSpatial(spatial);
  mAudioProxy.setLoop(loop);
  mWaitForFinish = waitForFinish;
  mTimeLimit = timeLimit;
  mSynchronize = synchronize;
}

qsf::action::Description PlayAudioAction::describe() const {
  const qsf::AudioSettings& settings = mAudioProxy.getSettings();
  const bool isSomewhere = settings.contextEntityId != qsf::UNINITIALIZED_ID;
  qsf::action::Description description{{"file", settings.sourceFile},
                                       {"target", isSomewhere ? std::to_string(settings.contextEntityId) : "null"},
                                       {"spatial", settings.spatial ? "1" : "0"},
                                       {"loop", settings.loop ? "1" : "0"},
                                       {"wait", mWaitForFinish ? "1" : "0"}};
  if (mTimeLimit) description.emplace_back("time", qsf::toText(mTimeLimit->getSecondsAsDouble()));
  return description;
}

bool PlayAudioAction::onStartup() {
  if (mAudioProxy.getSettings().sourceFile.empty()) return false;
  mPassed = qsf::Time();
  const qsf::UniqueInstance<qsf::AudioSettingsGroup> mixer;
  mAudioProxy.setVolume(mixer ? mixer->getMixerChannelSFXVolume() : 1.0f);
  mAudioProxy.play();
  if (mSynchronize) mAudioProxy.synchronizeWithMultiplay(true);
  return true;
}

qsf::action::Result PlayAudioAction::updateAction(const qsf::Clock& clock) {
  if (!isWaiting() || !mAudioProxy.isPlaying()) return qsf::action::RESULT_DONE;
  const bool isOver = mTimeLimit && mPassed >= *mTimeLimit;
  mPassed += clock.getTimePassed();
  return isOver ? qsf::action::RESULT_DONE : qsf::action::RESULT_CONTINUE;
}

void PlayAudioAction::onShutdown() {
  if (!isWaiting() || !mAudioProxy.isPlaying()) return;
  mAudioProxy.stop();
  mAudioProxy.detach();
  if (mSynchronize) mAudioProxy.synchronizeWithMultiplay(true);
}

}
