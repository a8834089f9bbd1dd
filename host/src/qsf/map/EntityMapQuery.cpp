#include "qsf/map/EntityMapQuery.h"

#include "qsf/component/MetadataComponent.h"

namespace qsf {

std::vector<Entity*> EntityMapQuery::getAllInstancesByName(const std::string& name) const {
  std::vector<Entity*> found;
  for (const Component* component : mMap.getComponentInstances(MetadataComponent::COMPONENT_ID))
    if (static_cast<const MetadataComponent*>(component)->getName() == name) found.push_back(&component->getEntity());
  return found;
}

}
