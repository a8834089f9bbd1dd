#pragma once

namespace qsf {

/// Kinds of things that collide, one bit each; a mask is a sum of them. Two things meet if each one's mask holds the
/// other's kind.
enum CollisionGroup : int {
  COLLISION_PERSON = 1,
  COLLISION_VEHICLE = 2,
  COLLISION_OBJECT = 4, ///< trees, houses, doors, barrels
  COLLISION_SENSOR = 8, ///< areas that notice, and that nothing notices but rays of their own kind
  COLLISION_ALL = 15
};

}
