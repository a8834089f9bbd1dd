#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/logic/TargetPoint.h"
#include "qsf/reflection/Object.h"

#include <memory>

namespace qsf {
class Entity;
}

namespace qsf::logic {

/// Tells where one has to stand to deal with an entity. Classes are found by the hash of their name in the class
/// registry; this base leads beside the entity, to the nearest edge of its box.
class QSF_API TargetPointProvider : public Object {
  CAMP_RTTI()
public:
  static void declareCamp();
  /// Null if no provider class has that id.
  static std::unique_ptr<TargetPointProvider> createById(StringHash targetPointId);

  /// Units to an entity's box, seen from above, below which one can deal with it. Every provider leads there.
  static constexpr float REACH = 4.0f;
  static bool isWithinReach(Entity& mover, Entity& target);

  virtual TargetPoint computeTargetPoint(Entity& mover, Entity& target) const;

protected:
  /// Sides of the box, in the entity's own directions.
  enum class Edge { NEAREST, LEFT_OR_RIGHT };
  /// Outside of the box, so far from the edge that the mover fits in between, and always within reach. A
  /// mover that stands there already stays where it is. An entity without a box is a point.
  static glm::vec3 getPlaceBeside(Entity& mover, Entity& target, Edge edge);
};

}
CAMP_TYPE_NONCOPYABLE(qsf::logic::TargetPointProvider)
