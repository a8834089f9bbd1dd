#include "game_plugin/scenario/program/EntryGroup.h"
#include "game_plugin/scenario/tick/ScenarioConditions.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY) ENTRY(GUISync_SetCallersAndTargetCondition)

CONDITION_GROUP(MPConditions, MANIFEST)

}
