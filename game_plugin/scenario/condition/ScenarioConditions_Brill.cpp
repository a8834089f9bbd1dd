#include "game_plugin/scenario/ScenarioConditions.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(Timer)                                                                                                         \
  ENTRY(CompareValues)
CONDITION_GROUP_CHAIN(ScenarioConditions_Brill, MANIFEST)

}
