#pragma once
#include "qsf/asset/AssetProxy.h"
#include "qsf/base/Ids.h"
#include "qsf/component/Component.h"
#include "qsf/component/MeshAnimationComponent.h"
#include "qsf/job/JobProxy.h"

#include <memory>

namespace scenario {

/// Extends the small ladder of a turntable ladder by the offset of an animation, slowly, up to a wanted level. Levels
/// run from 0 (drawn in) to 1. When it starts, it wants 0.0001, whatever the map says, so that the ladder comes to rest
/// in the animation. Properties "Anim" (the animation), "Entity" (what plays it), "Animation Speed" (hundredths of the
/// whole way a second), "Wanted Level", "Current Level", "Animation Finished" (it has got there, or can't).
class MeshAnimationComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"scenario::MeshAnimationComponent"};
  explicit MeshAnimationComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  float getWantedLevel() const { return mWantedLevel; }
  /// Starts the way there.
  void setWantedLevel(float level);
  float getCurrentLevel() const { return mCurrentLevel; }
  /// The ladder is there at once.
  void setCurrentLevel(float level);

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  void startJob();
  /// Goes on for so many seconds. False: there is nothing more to do.
  bool update(float seconds);
  /// The channel that plays the animation on the ladder's entity; a new one stands at the current level. Null if there
  /// is no such entity or animation.
  std::shared_ptr<qsf::MeshAnimationChannel> fetchChannel() const;

  qsf::AssetProxy mAnimation;
  std::uint64_t mLadderId = qsf::UNINITIALIZED_ID;
  float mAnimationSpeed = 0;
  float mWantedLevel = 0;
  float mCurrentLevel = 0;
  bool mAnimationFinished = false;
  bool mPlaying = false;
  qsf::JobProxy mJob;
};

}
CAMP_TYPE_NONCOPYABLE(scenario::MeshAnimationComponent)
