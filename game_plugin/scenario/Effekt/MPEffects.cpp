#include "game_plugin/scenario/program/EntryGroup.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(GUISync_ReadCallersAndTargetEffect)                                                                            \
  ENTRY(ActivateTriggerOnClientSide)

EFFECT_GROUP(MPEffects, MANIFEST)

}
