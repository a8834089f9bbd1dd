#include "game_plugin/scenario/program/EntryGroup.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(StartScriptedEvent)                                                                                            \
  ENTRY(AllowScriptedEventToFinish)                                                                                    \
  ENTRY(SetUniqueIdofNewEvent)                                                                                         \
  ENTRY(SetScriptedScenarioName)                                                                                       \
  ENTRY(CreateObjective)                                                                                               \
  ENTRY(ObjectiveSetCurrentNumber)                                                                                     \
  ENTRY(ObjectiveSetRequiredNumber)                                                                                    \
  ENTRY(DecreaseRequiredNumber)                                                                                        \
  ENTRY(AddEventFailConditionBurningObjects)                                                                           \
  ENTRY(AddEventFailConditionDiedPersons)                                                                              \
  ENTRY(AddEntitiesToEventObjective)                                                                                   \
  ENTRY(EntityOperationIsDone)                                                                                         \
  ENTRY(AddEntitiesByEventTagToEntityList)                                                                             \
  ENTRY(AddGangsterToEvent)                                                                                            \
  ENTRY(SetGangsterFleeing)                                                                                            \
  ENTRY(SetupBurningBuildingWithTrappedPersons)                                                                        \
  ENTRY(SetupBurningBuildingWithPersonAtWindow)                                                                        \
  ENTRY(BuildingExplode)                                                                                               \
  ENTRY(ExecuteIndustrialPlantFire)                                                                                    \
  ENTRY(ExecuteVehicleFire)                                                                                            \
  ENTRY(ObjectStartBurning)                                                                                            \
  ENTRY(ObjectInjure)                                                                                                  \
  ENTRY(CreatePersonThatNeedToBeResucedByDLK)                                                                          \
  ENTRY(DamageObject)                                                                                                  \
  ENTRY(DamageEbox)                                                                                                    \
  ENTRY(AddDivingSpotToEvent)
EFFECT_GROUP(ScenarioEffects_Event, MANIFEST)

}
