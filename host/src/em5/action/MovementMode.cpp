#include "em5/action/MovementMode.h"

namespace em5 {

namespace {

struct Row {
  MovementMode mode;
  const char* name;
  float speedFactor;
};

constexpr Row ROWS[] = {
    {MOVEMENT_MODE_DEFAULT, "MOVEMENT_MODE_DEFAULT", 1.0f},
    {MOVEMENT_MODE_CARRY_PERSON, "MOVEMENT_MODE_CARRY_PERSON", 0.5f},
    {MOVEMENT_MODE_WALK_BACKWARDS, "MOVEMENT_MODE_WALK_BACKWARDS", 0.25f},
    {MOVEMENT_MODE_RUN_PANIC, "MOVEMENT_MODE_RUN_PANIC", 1.25f},
    {MOVEMENT_MODE_CIVIL_CAR_MOVES_TO_THE_SIDE, "MOVEMENT_MODE_CIVIL_CAR_MOVES_TO_THE_SIDE", 0.5f},
    {MOVEMENT_MODE_PLAYER_VEHICLE_ON_EMERGENCY_OPERATIONS, "MOVEMENT_MODE_PLAYER_VEHICLE_ON_EMERGENCY_OPERATIONS",
     1.0f},
    {MOVEMENT_MODE_RUN, "MOVEMENT_MODE_RUN", 1.0f},
    {MOVEMENT_MODE_MAGNET, "MOVEMENT_MODE_MAGNET", 0.5f},
    {MOVEMENT_MODE_REDIRECT, "MOVEMENT_MODE_REDIRECT", 1.0f},
    {MOVEMENT_MODE_FREE_WALK, "MOVEMENT_MODE_FREE_WALK", 1.0f},
    {MOVEMENT_MODE_FREE_RUN, "MOVEMENT_MODE_FREE_RUN", 1.0f},
};

const Row* findRow(unsigned int movementMode) {
  for (const Row& row : ROWS)
    if (row.mode == movementMode) return &row;
  return nullptr;
}

}

float getSpeedFactor(unsigned int movementMode) {
  const Row* row = findRow(movementMode);
  return row ? row->speedFactor : 1.0f;
}

std::string getMovementModeName(unsigned int movementMode) {
  const Row* row = findRow(movementMode);
  return row ? row->name : "";
}

}
