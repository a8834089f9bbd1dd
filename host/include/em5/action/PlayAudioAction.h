#pragma once
#include "em5/audio/AudioProxy.h"
#include "qsf/action/Action.h"
#include "qsf/base/Time.h"

#include <optional>
#include <string>

namespace em5 {

/// Plays a sound. Ends at once, while the sound plays on, unless it is to be waited for; then it ends with the sound,
/// or after the time limit, and its sound stops with it. A looped one that is waited for without a limit never ends by
/// itself. A sound that doesn't exist isn't waited for.
class QSF_API PlayAudioAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::PlayAudioAction"};
  static void declareCamp();

  /// The file by local asset name; the entity from where it sounds may be null. A limit is waited for in any case. With
  /// `synchronize` the other machines of a session are told.
  void init(const std::string& file, const qsf::Entity* contextEntity, bool spatial, bool loop, bool waitForFinish,
            std::optional<qsf::Time> timeLimit = std::nullopt, bool synchronize = false);
  qsf::action::Description describe() const override;

protected:
  bool onStartup() override;
  qsf::action::Result updateAction(const qsf::Clock& clock) override;
  void onShutdown() override;

private:
  bool isWaiting() const { return mWaitForFinish || mTimeLimit; }

  AudioProxy mAudioProxy;
  std::optional<qsf::Time> mTimeLimit;
  qsf::Time mPassed;
  bool mWaitForFinish = false;
  bool mSynchronize = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::PlayAudioAction)
