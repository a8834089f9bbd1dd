#pragma once
#include "qsf/map/Map.h"

#include <glm/glm.hpp>

namespace qsf {

/// Asks for the height of the ground. Filter and ignored entity are passed by the game's own callers and have no
/// influence on bare ground.
class QSF_API GroundMapQuery {
public:
  explicit GroundMapQuery(const Map& map, int /*filter*/ = -1, const Entity* /*ignored*/ = nullptr) : mMap(map) {}

  /// The height of the ground below or above the place. Every place has ground, so the answer is always true; `force`
  /// asks for an answer outside of the map, too, where the ground goes on.
  bool getHeightAt(const glm::vec3& position, float& height, bool force = false) const;

private:
  const Map& mMap;
};

}
