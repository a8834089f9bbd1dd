#pragma once
#include "qsf/map/Map.h"

class btCollisionObject;

namespace qsf {

/// Asks the map's physics world who touches whom.
class QSF_API CollisionHelper {
public:
  explicit CollisionHelper(const Map& map) : mMap(map) {}

  /// Appends the entities whose boxes touch the object, by ascending id, each once. Group and mask stand for the
  /// object's own. An object that stands in the world itself doesn't meet itself, but a copy of it does. Without a
  /// physics world nothing is found.
  void getCollisionsAt(const btCollisionObject& object, std::vector<Entity*>& entities, int group, int mask) const;

private:
  const Map& mMap;
};

}
