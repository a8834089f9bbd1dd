#pragma once
#include "qsf/asset/AssetProxy.h"
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

#include <memory>

namespace qsf {

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
class QSF_API MeshAnimationComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::MeshAnimationComponent"};
  explicit MeshAnimationComponent(Prototype* prototype) : Component(prototype) {}
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

  std::shared_ptr<MeshAnimationChannel> mChannel;
  JobProxy mJob;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::MeshAnimationComponent)
