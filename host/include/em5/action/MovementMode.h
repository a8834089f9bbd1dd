#pragma once
#include "qsf/Export.h"

#include <string>

namespace em5 {

/// How a unit goes. Any other number, the uninitialised one among them, counts as the default.
enum MovementMode : unsigned int {
  MOVEMENT_MODE_DEFAULT = 0,
  MOVEMENT_MODE_CARRY_PERSON = 1,
  MOVEMENT_MODE_WALK_BACKWARDS = 2,
  MOVEMENT_MODE_RUN_PANIC = 3,
  MOVEMENT_MODE_CIVIL_CAR_MOVES_TO_THE_SIDE = 4,
  MOVEMENT_MODE_PLAYER_VEHICLE_ON_EMERGENCY_OPERATIONS = 5,
  MOVEMENT_MODE_RUN = 6,
  MOVEMENT_MODE_MAGNET = 8,
  MOVEMENT_MODE_REDIRECT = 9,
  MOVEMENT_MODE_FREE_WALK = 10,
  MOVEMENT_MODE_FREE_RUN = 11
};

/// By what the speed of the unit's qsf::MovableComponent is multiplied.
QSF_API float getSpeedFactor(unsigned int movementMode);
/// Name of the enumerator; empty for a number without one.
QSF_API std::string getMovementModeName(unsigned int movementMode);

}
