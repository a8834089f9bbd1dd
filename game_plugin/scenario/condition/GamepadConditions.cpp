#include "game_plugin/scenario/tick/ScenarioConditions.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(GamepadButtonIsPressed)                                                                                        \
  ENTRY(OnGamepadButtonPressed)                                                                                        \
  ENTRY(OnGamepadPOVPressed)                                                                                           \
  ENTRY(GamepadPOVIsPressed)                                                                                           \
  ENTRY(GamepadIsActiv)                                                                                                \
  ENTRY(CompareGamepadVendor)                                                                                          \
  ENTRY(CompareGamepadAxisValue)
CONDITION_GROUP(GamepadConditions, MANIFEST)

}
