#pragma once
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

namespace em5 {

/// Fades its entity in or out. An entity that has faded out is hidden, one that fades in shows from the beginning; at
/// the end the owner is destroyed if that is wanted. Properties "FadeIn", "Time" (seconds), "DeleteOwner", and
/// "Opacity" (0 to 1) to read.
class QSF_API FadeEffectComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::FadeEffectComponent"};
  explicit FadeEffectComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Starts fading, replacing a fade that runs. A time of zero or less ends with the next frame of simulation.
  void init(bool fadeIn, qsf::Time time, bool deleteOwner);
  bool isFading() const { return mFadeJobProxy.isRegistered(); }
  float getOpacity() const;

  bool getFadeIn() const { return mFadeIn; }
  void setFadeIn(bool fadeIn) { mFadeIn = fadeIn; }
  qsf::Time getTime() const { return mTime; }
  void setTime(qsf::Time time) { mTime = time; }
  bool getDeleteOwner() const { return mDeleteOwner; }
  void setDeleteOwner(bool deleteOwner) { mDeleteOwner = deleteOwner; }

protected:
  void onShutdown() override { mFadeJobProxy.unregister(); }

private:
  void fade(const qsf::JobArguments& arguments);

  qsf::JobProxy mFadeJobProxy;
  qsf::Time mTime;
  qsf::Time mPassed;
  bool mFadeIn = true;
  bool mDeleteOwner = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::FadeEffectComponent)
