#include "em5/component/UnitSpawnPointComponent.h"

#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<UnitSpawnPointComponent> declared;

void UnitSpawnPointComponent::declareCamp() {
  camp::Class::declare<UnitSpawnPointComponent>("em5::UnitSpawnPointComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("List", &UnitSpawnPointComponent::mList)
      .property("Disabled", &UnitSpawnPointComponent::isDisabled, &UnitSpawnPointComponent::setDisabled);
}

}
