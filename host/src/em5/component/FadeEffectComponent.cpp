#include "em5/component/FadeEffectComponent.h"

#include "em5/base/Jobs.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>

namespace em5 {

static const qsf::DeclaredClass<FadeEffectComponent> declared;

void FadeEffectComponent::declareCamp() {
  camp::Class::declare<FadeEffectComponent>("em5::FadeEffectComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("FadeIn", &FadeEffectComponent::getFadeIn, &FadeEffectComponent::setFadeIn)
      .property("Time", &FadeEffectComponent::getTime, &FadeEffectComponent::setTime)
      .property("DeleteOwner", &FadeEffectComponent::getDeleteOwner, &FadeEffectComponent::setDeleteOwner)
      .property("Opacity", &FadeEffectComponent::getOpacity);
}

void FadeEffectComponent::init(bool fadeIn, qsf::Time time, bool deleteOwner) {
  mFadeIn = fadeIn;
  mTime = time;
  mDeleteOwner = deleteOwner;
  mPassed = qsf::Time();
  if (fadeIn) getEntity().setHidden(false);
  mFadeJobProxy.registerAt(Jobs::SIMULATION_LOGIC, [this](const qsf::JobArguments& arguments) { fade(arguments); });
}

float FadeEffectComponent::getOpacity() const {
  const qsf::Entity* entity = findEntity();
  if (!isFading()) return entity && entity->isHidden() ? 0.0f : 1.0f;
  if (mTime <= qsf::Time()) return mFadeIn ? 0.0f : 1.0f; // it ends with the next frame
  const float share = std::clamp(mPassed.getSeconds() / mTime.getSeconds(), 0.0f, 1.0f);
  return mFadeIn ? share : 1.0f - share;
}

void FadeEffectComponent::fade(const qsf::JobArguments& arguments) {
  if (!isActive()) return;
  mPassed += arguments.getTimePassed();
  if (mPassed < mTime) return;
  mFadeJobProxy.unregister();
  if (!mFadeIn) getEntity().setHidden(true);
  if (mDeleteOwner) getEntity().getMap().destroyObjectById(getEntityId());
}

}
