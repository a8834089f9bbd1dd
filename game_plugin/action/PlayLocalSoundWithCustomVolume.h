#pragma once
#include "em5/audio/AudioProxy.h"
#include "qsf/action/Action.h"

#include <string>

namespace script {

/// Plays a sound from its entity's place, at a volume and with distances of its own. If it is waited for, the action
/// ends with the sound; else it ends at once and the sound plays on. One that is waited for or looped is stopped when
/// the action is destroyed.
class PlayLocalSoundWithCustomVolume : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"script::PlayLocalSoundWithCustomVolume"};
  static void declareCamp();
  ~PlayLocalSoundWithCustomVolume() override;

  /// The file by local asset name; one that holds ".ogg" nowhere gets this ending. The volume, 1 for the usual one, is
  /// multiplied by the mixer's and by 0.6. Distances in units.
  void init(const std::string& sourceFile, float volume, float referenceDistance, float maximumDistance,
            bool playInLoop, bool waitForFinish);
  qsf::action::Description describe() const override;

protected:
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  enum class State { START, PLAYING };

  void play();

  State mState = State::START;
  float mVolume = 1;
  float mReferenceDistance = 5;
  float mMaximumDistance = 50;
  std::string mSourceFile;
  bool mPlayInLoop = false;
  bool mWaitForFinish = false;
  em5::AudioProxy mAudioProxy;
};

}
CAMP_TYPE_NONCOPYABLE(script::PlayLocalSoundWithCustomVolume)
