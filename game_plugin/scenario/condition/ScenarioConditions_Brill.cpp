#include "game_plugin/scenario/tick/ScenarioConditions.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(CanBeTowed)                                                                                                    \
  ENTRY(IsSirenEnabled)                                                                                                \
  ENTRY(ObjectIsBurning)                                                                                               \
  ENTRY(SquadPersonInValidState)                                                                                       \
  ENTRY(SquadVehicleInValidState)                                                                                      \
  ENTRY(IsAnimationCurrentlyPlaying)                                                                                   \
  ENTRY(HasParent)                                                                                                     \
  ENTRY(UnitsInArea)                                                                                                   \
  ENTRY(DistanceToUnit)                                                                                                \
  ENTRY(UnitIsSelected)                                                                                                \
  ENTRY(HasEquipment)                                                                                                  \
  ENTRY(HasName)                                                                                                       \
  ENTRY(CurrentActionPriorityMaximum)                                                                                  \
  ENTRY(EntityListHasSize)                                                                                             \
  ENTRY(IsUnitInSensorArea)                                                                                            \
  ENTRY(IsAnyEntityInSensorArea)                                                                                       \
  ENTRY(DoorHasState)                                                                                                  \
  ENTRY(IsOpenHouse)                                                                                                   \
  ENTRY(Timer)                                                                                                         \
  ENTRY(CompareValues)                                                                                                 \
  ENTRY(GetLocalPlayerId)                                                                                              \
  ENTRY(IsHotkeyPressed)                                                                                               \
  ENTRY(OnHotkeyPressed)                                                                                               \
  ENTRY(MouseWheelIsMoving)                                                                                            \
  ENTRY(ChangeMouseIconConditional)                                                                                    \
  ENTRY(StartMouseClickCommand)                                                                                        \
  ENTRY(EndMouseClickCommand)                                                                                          \
  ENTRY(StringVarMatchsString)                                                                                         \
  ENTRY(IsGameMode)                                                                                                    \
  ENTRY(IsModActive)                                                                                                   \
  ENTRY(IsPluginLoaded)                                                                                                \
  ENTRY(GetLanguage)                                                                                                   \
  ENTRY(PlayerHasName)                                                                                                 \
  ENTRY(IsDocumentVisible)                                                                                             \
  ENTRY(UnitSpawned)                                                                                                   \
  ENTRY(UnitSelectionChanged)                                                                                          \
  ENTRY(UseEquipmentActionMessageSend)                                                                                 \
  ENTRY(ScenarioActivateTriggerMessageArrived)
CONDITION_GROUP(ScenarioConditions_Brill, MANIFEST)

}
