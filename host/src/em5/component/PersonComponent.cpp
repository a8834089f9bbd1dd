#include "em5/component/PersonComponent.h"

#include "qsf/component/MeshAnimationComponent.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<PersonComponent> declared;

void PersonComponent::declareCamp() {
  camp::Class::declare<PersonComponent>("em5::PersonComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("EquipmentId", &PersonComponent::getEquipmentId, &PersonComponent::setEquipmentId)
      .tag(qsf::UNSIGNED_TAG)
      .property("ContainerId", &PersonComponent::getContainerId, &PersonComponent::setContainerId)
      .tag(qsf::UNSIGNED_TAG)
      .property("Gangster", &PersonComponent::isGangster, &PersonComponent::setGangsterFlag)
      .property("Drunk", &PersonComponent::isDrunken, &PersonComponent::setDrunken)
      .property("Animation", &PersonComponent::getAnimation, &PersonComponent::setAnimation)
      .property("Masked", &PersonComponent::isMasked, &PersonComponent::setMasked);
}

void PersonComponent::setPersonFlags(int flag, bool set) {
  if (flag == PERSON_FLAG_DRUNK) setDrunken(set);
}

std::string PersonComponent::getAnimation() const {
  const qsf::Entity* entity = findEntity();
  const auto* meshAnimation = entity ? entity->getComponent<qsf::MeshAnimationComponent>() : nullptr;
  if (!meshAnimation) return mAnimation;
  const auto& channel = meshAnimation->getChannel();
  return channel ? channel->getAnimation().getLocalAssetName() : std::string();
}

void PersonComponent::setAnimation(const std::string& localAssetName) {
  mAnimation = localAssetName;
  const qsf::Entity* entity = findEntity();
  auto* meshAnimation = entity ? entity->getComponent<qsf::MeshAnimationComponent>() : nullptr;
  if (!meshAnimation) return;
  if (mAnimation.empty())
    meshAnimation->clearAnimation();
  else
    meshAnimation->playAnimation(qsf::AssetProxy(mAnimation), true);
}

}
