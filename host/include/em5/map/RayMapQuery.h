#pragma once
#include "qsf/map/RayMapQuery.h"

namespace em5 {

/// The game's view of a ray: which entity the player points at.
class QSF_API RayMapQuery : public qsf::RayMapQuery {
public:
  explicit RayMapQuery(const qsf::Map& map) : qsf::RayMapQuery(map) {}
  /// The entity whose box is met first; null if the cursor points at bare ground, at the sky, or if there is no window.
  qsf::Entity* getEntityUnderNormalizedMousePosition(const glm::vec2& position) const;
};

}
