#include "em5/component/BuildingComponent.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<BuildingComponent> declared;

void BuildingComponent::declareCamp() {
  camp::Class::declare<BuildingComponent>("em5::BuildingComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("EntityIds", &BuildingComponent::mEntityIds)
      .tag(qsf::UNSIGNED_TAG)
      .property("Lights", &BuildingComponent::mLights)
      .tag(qsf::UNSIGNED_TAG);
}

}
