#include "em5/component/HelicopterComponent.h"

#include "qsf/reflection/CampTypes.h"

namespace em5 {

void HelicopterComponent::declareCamp() {
  camp::Class::declare<HelicopterComponent>("em5::HelicopterComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Flying", &HelicopterComponent::isFlying, &HelicopterComponent::setFlying);
}

}
