#include "qsf/map/GroundMapQuery.h"

namespace qsf {

bool GroundMapQuery::getHeightAt(const glm::vec3& position, float& height, bool /*force*/) const {
  height = mMap.getGroundHeight(position.x, position.z);
  return true;
}

}
