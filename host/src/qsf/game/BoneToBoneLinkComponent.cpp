#include "qsf/game/BoneToBoneLinkComponent.h"

#include "qsf/component/LinkComponent.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

namespace qsf::game {

static const DeclaredClass<BoneToBoneLinkComponent> declared;

void BoneToBoneLinkComponent::declareCamp() {
  camp::Class::declare<BoneToBoneLinkComponent>("qsf::game::BoneToBoneLinkComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("OwnBone", &BoneToBoneLinkComponent::getOwnBone, &BoneToBoneLinkComponent::setOwnBone)
      .property("ParentBone", &BoneToBoneLinkComponent::getParentBone, &BoneToBoneLinkComponent::setParentBone)
      .property("BoundParentId", &BoneToBoneLinkComponent::getBoundParentId)
      .tag(UNSIGNED_TAG);
}

bool BoneToBoneLinkComponent::onStartup() {
  const auto* link = getEntity().getComponent<LinkComponent>();
  mBoundParentId = link ? link->getParentId() : UNINITIALIZED_ID;
  return true;
}

}
