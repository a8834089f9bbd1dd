#include "em5/component/HelicopterComponent.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<HelicopterComponent> declared;

void HelicopterComponent::declareCamp() {
  camp::Class::declare<HelicopterComponent>("em5::HelicopterComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Flying", &HelicopterComponent::isFlying, &HelicopterComponent::setFlying);
}

}
