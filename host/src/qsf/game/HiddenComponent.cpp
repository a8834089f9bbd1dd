#include "qsf/game/HiddenComponent.h"

#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf::game {

static const DeclaredClass<HiddenComponent> declared;

void HiddenComponent::declareCamp() {
  camp::Class::declare<HiddenComponent>("qsf::game::HiddenComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Hidden", &HiddenComponent::isHidden, &HiddenComponent::setHidden);
}

void HiddenComponent::setHidden(bool hidden) {
  mHidden = hidden;
  Entity* entity = findEntity();
  if (entity && entity->isHidden() != hidden) entity->setHidden(hidden);
}

}
