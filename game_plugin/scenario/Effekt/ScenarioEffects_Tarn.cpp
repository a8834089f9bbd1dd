#include "game_plugin/scenario/program/EntryGroup.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(StartScenario)                                                                                                 \
  ENTRY(StopScenario)                                                                                                  \
  ENTRY(SetLocalVariableGlobal)                                                                                        \
  ENTRY(SetLocalEntityListGlobal)                                                                                      \
  ENTRY(SetStringVariableToValue)                                                                                      \
  ENTRY(DoLogEntry)                                                                                                    \
  ENTRY(AddEntityToEntityList)                                                                                         \
  ENTRY(GetSizeOfEntityList)                                                                                           \
  ENTRY(GetEntitiesOutOfEntityList)                                                                                    \
  ENTRY(GetAllEntitiesWithComponent)                                                                                   \
  ENTRY(RemoveAllEntitiesWithComponent)                                                                                \
  ENTRY(RemoveAllEntitiesWithoutComponent)                                                                             \
  ENTRY(GetAllEntitiesWithName)                                                                                        \
  ENTRY(RemoveAllEntitiesWithName)                                                                                     \
  ENTRY(SetLocalTransform)                                                                                             \
  ENTRY(GetTransform)                                                                                                  \
  ENTRY(DestroyObject)                                                                                                 \
  ENTRY(ActivateComponent)                                                                                             \
  ENTRY(SetVariableFromComponent)                                                                                      \
  ENTRY(FadeInOut)                                                                                                     \
  ENTRY(MoveAction)                                                                                                    \
  ENTRY(PlayAnimation)                                                                                                 \
  ENTRY(ExecuteActionWithoutParameters)                                                                                \
  ENTRY(ClearActionPlan)                                                                                               \
  ENTRY(RemoveAction)                                                                                                  \
  ENTRY(PlayLocalSound)                                                                                                \
  ENTRY(PlayGlobalSound)                                                                                               \
  ENTRY(CreateJsonRoot)                                                                                                \
  ENTRY(WriteJson)                                                                                                     \
  ENTRY(AddValueToRoot)                                                                                                \
  ENTRY(AddValueListToRoot)                                                                                            \
  ENTRY(AddValueToValueList)                                                                                           \
  ENTRY(ReadJson)                                                                                                      \
  ENTRY(GetValueFromJson)                                                                                              \
  ENTRY(KillPerson)                                                                                                    \
  ENTRY(LightOnOff)                                                                                                    \
  ENTRY(ToggleLight)                                                                                                   \
  ENTRY(SetStatusIcon)                                                                                                 \
  ENTRY(SetStatusBar)                                                                                                  \
  ENTRY(SetPlayerId)                                                                                                   \
  ENTRY(SetDayTime)                                                                                                    \
  ENTRY(LoadMap)                                                                                                       \
  ENTRY(ShowSupervisor)                                                                                                \
  ENTRY(ChangeMouseIcon)                                                                                               \
  ENTRY(ResetMouseIcon)                                                                                                \
  ENTRY(GetPositionUnderMouse)                                                                                         \
  ENTRY(GetTargetEntity)
EFFECT_GROUP(ScenarioEffects_Tarn, MANIFEST)

}
