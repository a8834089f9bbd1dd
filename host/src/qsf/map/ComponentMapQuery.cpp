#include "qsf/map/ComponentMapQuery.h"

#include "qsf/map/MapInternals.h"

namespace qsf {

std::vector<Component*> ComponentMapQuery::getAllInstancesById(StringHash componentId) const {
  return mMap.getComponentInstances(componentId);
}

std::vector<Component*> ComponentMapQuery::getInstancesInCircleById(StringHash componentId, const glm::vec3& center,
                                                                    float radius) const {
  if (!(radius >= 0)) return {};
  Map::Internals& internals = mMap.getInternals();
  return internals.spatial.find(componentId, internals.components, center, radius);
}

}
