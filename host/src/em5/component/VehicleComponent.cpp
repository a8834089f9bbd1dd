#include "em5/component/VehicleComponent.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>
#include <cmath>

namespace em5 {

static const qsf::DeclaredClass<VehicleComponent> declared;

void VehicleComponent::declareCamp() {
  camp::Class::declare<VehicleComponent>("em5::VehicleComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("CanBeTowed", &VehicleComponent::getCanBeTowed, &VehicleComponent::setCanBeTowed)
      .property("CanBeCut", &VehicleComponent::getCanBeCut, &VehicleComponent::setCanBeCut)
      .property("SirenEnabled", &VehicleComponent::isSirenEnabled, &VehicleComponent::setSirenEnabled)
      .property("Damage", &VehicleComponent::getDamage, &VehicleComponent::setDamage);
}

void VehicleComponent::setDamage(float damage) {
  if (std::isnan(damage)) return;
  const bool wasDestroyed = isDestroyed();
  mDamage = std::clamp(damage, 0.0f, 1.0f);
  if (isDestroyed() && !wasDestroyed) mSirenEnabled = false;
}

void VehicleComponent::applyDamage(float damage) { setDamage(mDamage + damage); }

}
