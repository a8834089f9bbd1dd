#include "game_plugin/scenario/tick/ScenarioConditions.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(EntityHasComponent)                                                                                            \
  ENTRY(IsEntityExisting)                                                                                              \
  ENTRY(IsDayTime)                                                                                                     \
  ENTRY(OnMousePressed)                                                                                                \
  ENTRY(IsAnyEntitySelected)                                                                                           \
  ENTRY(IsAnyEntityUnderMouse)                                                                                         \
  ENTRY(HasSelectionMouseClickCommand)                                                                                 \
  ENTRY(IsCommandButtonClicked)                                                                                        \
  ENTRY(IsActionInPlan)                                                                                                \
  ENTRY(IsCurrentAction)                                                                                               \
  ENTRY(IsVehicleMoving)                                                                                               \
  ENTRY(IsScenarioActive)
CONDITION_GROUP(ScenarioConditions_Tarn, MANIFEST)

}
