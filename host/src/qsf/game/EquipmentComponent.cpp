#include "qsf/game/EquipmentComponent.h"

#include "qsf/reflection/ClassRegistry.h"

namespace qsf::game {

static const DeclaredClass<EquipmentComponent> declared;

void EquipmentComponent::declareCamp() {
  camp::Class::declare<EquipmentComponent>("qsf::game::EquipmentComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("EquipmentName", &EquipmentComponent::getEquipmentName, &EquipmentComponent::setEquipmentName);
}

}
