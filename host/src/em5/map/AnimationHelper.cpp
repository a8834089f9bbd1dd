#include "em5/map/AnimationHelper.h"

#include "qsf/map/Entity.h"

namespace em5 {

std::shared_ptr<qsf::MeshAnimationChannel> AnimationHelper::playAnimation(const std::string& animation, bool looped,
                                                                          bool reverse, qsf::Time blendTime) const {
  auto* component = mEntity.getOrCreateComponent<qsf::MeshAnimationComponent>();
  const qsf::AssetProxy proxy(animation);
  return blendTime > qsf::Time() ? component->blendToAnimation(proxy, looped, blendTime, reverse, 0.0f, 1.0f)
                                 : component->playAnimation(proxy, looped, reverse, 1.0f);
}

std::string AnimationHelper::getAnimationWaveHelpFromWindow() { return "em5/animation/person/wave_help_from_window"; }

}
