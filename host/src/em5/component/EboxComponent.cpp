#include "em5/component/EboxComponent.h"

#include "em5/map/EntityHelper.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

#include <utility>

namespace em5 {

static const qsf::DeclaredClass<EboxComponent> declared;

void EboxComponent::declareCamp() {
  camp::Class::declare<EboxComponent>("em5::EboxComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Defect", &EboxComponent::isDefect, &EboxComponent::setDefect)
      .property("GapeChance", &EboxComponent::mGapeChance)
      .property("GapeRadius", &EboxComponent::mGapeRadius)
      .property("LightningEntity", &EboxComponent::mLightningEntity)
      .tag(qsf::UNSIGNED_TAG)
      .property("SparksEntity", &EboxComponent::mSparksEntity)
      .tag(qsf::UNSIGNED_TAG);
}

void EboxComponent::setDefect(bool defect) {
  if (defect)
    mDefect = true;
  else
    setEboxIntact();
}

void EboxComponent::setEboxDefectiveWithGaping(float gapeChance, float gapeRadius) {
  mDefect = true;
  mGapeChance = gapeChance;
  mGapeRadius = gapeRadius;
}

void EboxComponent::setEboxIntact() {
  mDefect = false;
  mGapeChance = 0;
  mGapeRadius = 0;
  destroyParticles();
}

bool EboxComponent::isBurning() const { return EntityHelper(getEntity()).isBurning(); }

void EboxComponent::destroyParticles() {
  for (std::uint64_t* id : {&mLightningEntity, &mSparksEntity}) {
    const std::uint64_t particles = std::exchange(*id, qsf::UNINITIALIZED_ID);
    if (qsf::Entity* entity = findEntity()) entity->getMap().destroyObjectById(particles);
  }
}

}
