#include "qsf/map/ComponentMapQuery.h"

#include "qsf/map/MapInternals.h"

namespace qsf {

std::vector<Component*> ComponentMapQuery::getAllInstancesById(StringHash componentId) const {
  return mMap.getComponentInstances(componentId);
}

std::vector<Component*> ComponentMapQuery::getInstancesInCircleById(StringHash componentId, const glm::vec3& center,
                                                                    float radius) const {
  if (!(radius >= 0)) return {};
  std::vector<Component*> found =
      mMap.getInternals().spatial.find(componentId, mMap.getComponentInstances(componentId), center, radius);
  std::sort(found.begin(), found.end(),
            [](const Component* left, const Component* right) { return left->getEntityId() < right->getEntityId(); });
  return found;
}

}
