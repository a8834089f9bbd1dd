#include "em5/component/TreeComponent.h"

#include "qsf/reflection/CampTypes.h"

namespace em5 {

void TreeComponent::declareCamp() {
  camp::Class::declare<TreeComponent>("em5::TreeComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Broken", &TreeComponent::isBroken, &TreeComponent::setBroken);
}

}
