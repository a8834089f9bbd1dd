#include "em5/component/BuildingComponent.h"

#include "qsf/reflection/CampTypes.h"

namespace em5 {

void BuildingComponent::declareCamp() {
  camp::Class::declare<BuildingComponent>("em5::BuildingComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("EntityIds", &BuildingComponent::mEntityIds)
      .tag(qsf::UNSIGNED_TAG);
}

}
