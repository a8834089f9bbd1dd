#include "game_plugin/scenario/program/EntryGroup.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(Return)                                                                                                        \
  ENTRY(PrintTriggerInfo)                                                                                              \
  ENTRY(ActivateTrigger)                                                                                               \
  ENTRY(ActivateGlobalTrigger)                                                                                         \
  ENTRY(SetVariable)                                                                                                   \
  ENTRY(VariableModify)                                                                                                \
  ENTRY(SetVariableRandom)                                                                                             \
  ENTRY(ConvertEntityToVariable)                                                                                       \
  ENTRY(WriteStringvarToEntityList)                                                                                    \
  ENTRY(EnableFreeplayEvents)                                                                                          \
  ENTRY(StartEvent)                                                                                                    \
  ENTRY(AddFreeplayEventPool)                                                                                          \
  ENTRY(PickUnitsFromEntityList)                                                                                       \
  ENTRY(PickClosestUnitsFromEntityList)                                                                                \
  ENTRY(AddUnitsFromTypeToEntityList)                                                                                  \
  ENTRY(ClearEntityIdList)                                                                                             \
  ENTRY(AddSelectionToEntityIdList)                                                                                    \
  ENTRY(RemoveInvalidEntitiesFromList)                                                                                 \
  ENTRY(GetNextEntryFromEntityList)                                                                                    \
  ENTRY(GetEntityChildWithDescription)                                                                                 \
  ENTRY(GetEquipmentEntitesFromEntityList)                                                                             \
  ENTRY(SetTransform)                                                                                                  \
  ENTRY(RotateObject)                                                                                                  \
  ENTRY(SetEntityPositionToPositionUnderMouse)                                                                         \
  ENTRY(SpawnObject)                                                                                                   \
  ENTRY(DestroyComponent)                                                                                              \
  ENTRY(CreateComponent)                                                                                               \
  ENTRY(LinkEntityToParent)                                                                                            \
  ENTRY(UnlinkFromParent)                                                                                              \
  ENTRY(SetName)                                                                                                       \
  ENTRY(MoveToTarget)                                                                                                  \
  ENTRY(PlayAnimationOnClient)                                                                                         \
  ENTRY(TriggerWaitAction)                                                                                             \
  ENTRY(TurnToAction)                                                                                                  \
  ENTRY(UseEquipmentAction)                                                                                            \
  ENTRY(GetEquipment)                                                                                                  \
  ENTRY(PlayLocalSoundWithCustomVolume)                                                                                \
  ENTRY(PushWaitUntilPropertyIsValueAction)                                                                            \
  ENTRY(PushSetCampPropertyAction)                                                                                     \
  ENTRY(WriteActionPlanToStringVar)                                                                                    \
  ENTRY(FlagPersonAsDrunk)                                                                                             \
  ENTRY(SetSirenState)                                                                                                 \
  ENTRY(OpenDoor)                                                                                                      \
  ENTRY(SetupOpenHouseForBurning)                                                                                      \
  ENTRY(ShowOpenHouseLayer)                                                                                            \
  ENTRY(SetRenderQueueId)                                                                                              \
  ENTRY(ForceHelicopterFlying)                                                                                         \
  ENTRY(SendCarTowed)                                                                                                  \
  ENTRY(AddEntityToComponentArray)                                                                                     \
  ENTRY(SpawnPlayerVehicle)                                                                                            \
  ENTRY(RegisterUnit)                                                                                                  \
  ENTRY(UnregisterUnit)                                                                                                \
  ENTRY(ChangeUnitDepartment)                                                                                          \
  ENTRY(ModifyVehicleStartPersonal)                                                                                    \
  ENTRY(SetUnitPool)                                                                                                   \
  ENTRY(SetMaximumUnitAmount)                                                                                          \
  ENTRY(AddCommand)                                                                                                    \
  ENTRY(RemoveCommand)                                                                                                 \
  ENTRY(LogCommands)                                                                                                   \
  ENTRY(ExecuteCommand)                                                                                                \
  ENTRY(SelectUnits)                                                                                                   \
  ENTRY(ActivateLayer)                                                                                                 \
  ENTRY(MountProject)                                                                                                  \
  ENTRY(UnmountAsset)                                                                                                  \
  ENTRY(SetLanguage)                                                                                                   \
  ENTRY(SetMusicLevel)                                                                                                 \
  ENTRY(MoveCameraOnCameraTrack)                                                                                       \
  ENTRY(OpenUrl)                                                                                                       \
  ENTRY(DoSthCool)                                                                                                     \
  ENTRY(TranslateString)                                                                                               \
  ENTRY(ShowText)                                                                                                      \
  ENTRY(ShowLetterBoxes)                                                                                               \
  ENTRY(ShowSubtitle)                                                                                                  \
  ENTRY(ShowChoiceDialogue)                                                                                            \
  ENTRY(DisablePlayerControl)                                                                                          \
  ENTRY(SetPlayerControl)
EFFECT_GROUP(ScenarioEffects_Brill, MANIFEST)

}
