#pragma once
#include "qsf/asset/AssetProxy.h"
#include "qsf/component/BoneState.h"
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

#include <memory>
#include <optional>
#include <string>

namespace Ogre {
class Bone;
}

namespace qsf {

class SkeletonPose;

/// One run of an animation. Shared between the component that plays it and those who watch it.
class QSF_API MeshAnimationChannel {
public:
  enum class Repeat { ONCE, LOOPED };
  enum class Direction { FORWARD, REVERSE };
  MeshAnimationChannel(const AssetProxy& animation, Time length, Repeat repeat, Direction direction, float speed);

  const AssetProxy& getAnimation() const { return mAnimation; }
  Time getLength() const { return mLength; }
  /// How far it is, 0 to 1 of its length.
  float getOffset() const;
  /// Clamped to 0 to 1; one that isn't a number counts as 0.
  void setOffset(float offset);
  /// Factor of its pace, at least 0: at 0 it stands still where it is and goes on playing. One that isn't a number
  /// counts as 0.
  void setSpeed(float speed) { mSpeed = speed > 0 ? speed : 0.0f; }
  /// A looped one never is by itself.
  bool isFinished() const { return mFinished; }
  void stop() { mFinished = true; }
  void advance(Time timePassed);

private:
  AssetProxy mAnimation;
  Time mLength, mPosition;
  Repeat mRepeat;
  Direction mDirection;
  float mSpeed;
  bool mFinished = false;
};

/// Plays an entity's animations, one at a time: a new one takes the place of the one before. An animation lasts as long
/// as "length" in its asset's JSON file says, in seconds of simulated time; without that, a second. Property
/// "Animation": the local asset name of what plays, empty when nothing does; setting it plays that animation once. The
/// play operations are noted in the call recorder.
///
/// Property "Skeleton": the asset whose bones the animations move (docs/host.md); without it there are none. The bones
/// follow what plays in each update and come to rest when nothing does, but for those under manual control.
class QSF_API MeshAnimationComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::MeshAnimationComponent"};
  explicit MeshAnimationComponent(Prototype* prototype);
  /// What plays ends with the component.
  ~MeshAnimationComponent() override;
  static void declareCamp();

  /// Null, and what plays goes on, if the asset doesn't exist. A speed of 0 or less, or one that isn't a number, counts
  /// as 1.
  std::shared_ptr<MeshAnimationChannel> playAnimation(const AssetProxy& animation, bool looped = false,
                                                      bool reverse = false, float speed = 1.0f);
  /// As playAnimation, from `offset` (0 to 1) on. The span of the blending shows nowhere without a picture; the new
  /// animation counts as playing at once.
  std::shared_ptr<MeshAnimationChannel> blendToAnimation(const AssetProxy& animation, bool looped, Time blendTime,
                                                         bool reverse, float offset, float speed);
  void clearAnimation();
  bool isAnimationPlaying() const { return mChannel != nullptr; }
  bool isAnimationPlaying(const AssetProxy& animation) const;
  /// Null when nothing plays.
  const std::shared_ptr<MeshAnimationChannel>& getChannel() const { return mChannel; }

  /// What was under manual control no longer is, and stands in its rest pose.
  void setSkeleton(const AssetProxy& skeleton);
  const AssetProxy& getSkeleton() const { return mSkeleton; }
  /// Takes a bone away from the animations, as it stands, or gives it back to them: it then moves to the animation's
  /// pose, or to its rest pose, in the next update. The bone is null if the skeleton has none of that name; it lives as
  /// long as the component has the skeleton. `wasManual`, if it isn't null, is told how it was before.
  Ogre::Bone* manualBoneControl(const std::string& boneName, bool manual, bool* wasManual = nullptr);
  /// Nothing if the skeleton has no such bone.
  std::optional<BoneState> getBoneState(const std::string& boneName);

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  std::string getAnimationName() const;
  void setAnimationName(const std::string& name);
  std::shared_ptr<MeshAnimationChannel> startAnimation(const AssetProxy& animation, bool looped, bool reverse,
                                                       float speed);
  void updateRegistration();
  void update(const JobArguments& arguments);
  /// Made when it is first asked for. Null without a skeleton.
  SkeletonPose* findPose();
  void showPose();

  AssetProxy mSkeleton;
  std::unique_ptr<SkeletonPose> mPose;
  bool mPoseIsStale = false; // it shows at the next update what it should
  std::shared_ptr<MeshAnimationChannel> mChannel;
  JobProxy mJob;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::MeshAnimationComponent)
