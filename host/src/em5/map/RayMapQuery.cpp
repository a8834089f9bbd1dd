#include "em5/map/RayMapQuery.h"

#include "qsf/window/WindowApplication.h"

namespace em5 {

qsf::Entity* RayMapQuery::getEntityUnderNormalizedMousePosition(const glm::vec2& position) const {
  const qsf::UniqueInstance<qsf::WindowApplication> application;
  if (!application) return nullptr;
  return getFirstHitByRenderWindowNormalizedPosition(application->getRenderWindow(), position).entity;
}

}
