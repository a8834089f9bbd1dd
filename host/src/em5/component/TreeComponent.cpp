#include "em5/component/TreeComponent.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<TreeComponent> declared;

void TreeComponent::declareCamp() {
  camp::Class::declare<TreeComponent>("em5::TreeComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Broken", &TreeComponent::isBroken, &TreeComponent::setBroken);
}

}
