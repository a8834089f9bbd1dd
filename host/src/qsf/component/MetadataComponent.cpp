#include "qsf/component/MetadataComponent.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

static const DeclaredClass<MetadataComponent> declared;

void MetadataComponent::declareCamp() {
  camp::Class::declare<MetadataComponent>("qsf::MetadataComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Name", &MetadataComponent::getName, &MetadataComponent::setName)
      .property("Description", &MetadataComponent::getDescription, &MetadataComponent::setDescription)
      .property("BasePrefab", &MetadataComponent::getBasePrefab, &MetadataComponent::setBasePrefab);
}

}
