#include "qsf/game/EquipmentComponent.h"

namespace qsf::game {

void EquipmentComponent::declareCamp() {
  camp::Class::declare<EquipmentComponent>("qsf::game::EquipmentComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("EquipmentName", &EquipmentComponent::getEquipmentName, &EquipmentComponent::setEquipmentName);
}

}
