#include "em5/component/DamageComponent.h"

#include "qsf/base/RecordedOperation.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>

namespace em5 {

static const qsf::DeclaredClass<DamageComponent> declared;
static const qsf::RecordedOperation explosionCall{"em5::DamageComponent::showExplosionFireParticles", "entity"};

void DamageComponent::declareCamp() {
  camp::Class::declare<DamageComponent>("em5::DamageComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("DamageState", &DamageComponent::getDamageState, &DamageComponent::setDamageState);
}

void DamageComponent::worsenDamageState(int state) { setDamageState(std::max(mDamageState, state)); }

void DamageComponent::showExplosionFireParticles() const { explosionCall.record({std::to_string(getEntityId())}); }

}
