#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/Time.h"
#include "qsf/component/MeshAnimationComponent.h"

#include <memory>
#include <optional>
#include <string>

namespace em5 {

/// Plays an animation. Ends at once, while the animation plays on, unless it is to be waited for; then it ends with the
/// animation, or after the time limit, and its animation stops with it. A looped one that is waited for without a limit
/// never ends by itself. An unknown asset plays nothing and isn't waited for.
class QSF_API PlayAnimationAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::PlayAnimationAction"};
  static void declareCamp();

  /// The animation by local asset name. A limit is waited for in any case.
  void init(const std::string& animation, bool waitForFinish, bool loop, bool reverse,
            qsf::Time blendTime = qsf::Time(), std::optional<qsf::Time> timeLimit = std::nullopt);
  qsf::action::Description describe() const override;

protected:
  bool onStartup() override;
  qsf::action::Result updateAction(const qsf::Clock& clock) override;
  void onShutdown() override;

private:
  bool isWaiting() const { return mWaitForFinish || mTimeLimit; }

  std::string mAnimation;
  qsf::Time mBlendTime, mPassed;
  std::optional<qsf::Time> mTimeLimit;
  std::shared_ptr<qsf::MeshAnimationChannel> mChannel;
  bool mWaitForFinish = false;
  bool mLoop = false;
  bool mReverse = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::PlayAnimationAction)
