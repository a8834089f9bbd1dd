#pragma once
#include "qsf/component/CameraComponent.h"
#include "qsf/map/Map.h"
#include "qsf/physics/CollisionGroup.h"

#include <limits>

namespace qsf {

class RenderWindow;

/// What a ray met first.
struct RayMapQueryResult {
  bool hit = false;
  glm::vec3 position{0, 0, 0};
  float distance = std::numeric_limits<float>::infinity();
  /// Null if it is the ground.
  Entity* entity = nullptr;
};

/// Follows rays through a map to the first collision box or to the ground, whichever comes first. Boxes count while
/// their components run. Sensors are looked through.
class QSF_API RayMapQuery {
public:
  explicit RayMapQuery(const Map& map) : mMap(map) {}

  RayMapQueryResult getFirstHit(const Ray& ray, float maximumDistance = DEFAULT_DISTANCE) const;
  /// The ray through a pixel of the window. No hit while the map has no camera.
  RayMapQueryResult getFirstHitByRenderWindow(const RenderWindow& window, const glm::ivec2& pixel) const;
  RayMapQueryResult getFirstHitByRenderWindowNormalizedPosition(const RenderWindow& window,
                                                                const glm::vec2& position) const;

  static constexpr float DEFAULT_DISTANCE = 10000.0f;

private:
  RayMapQueryResult getGroundHit(const Ray& ray, float maximumDistance) const;
  const Map& mMap;
};

}
