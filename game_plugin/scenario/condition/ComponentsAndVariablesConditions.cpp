#include "game_plugin/scenario/tick/ScenarioConditions.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(ComponentPropertyContainsString)                                                                               \
  ENTRY(ComponentPropertyMatchsString)                                                                                 \
  ENTRY(CompareComponentPropertyToFloatVariable)                                                                       \
  ENTRY(ActionPlanIsEmpty)                                                                                             \
  ENTRY(CompareEntityListSizes)                                                                                        \
  ENTRY(CompareEntityListSizeWithValue)
CONDITION_GROUP(ComponentsAndVariablesConditions, MANIFEST)

}
