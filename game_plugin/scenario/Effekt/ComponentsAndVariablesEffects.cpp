#include "game_plugin/scenario/program/EntryGroup.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(SetComponentProperty)                                                                                          \
  ENTRY(SetPropertyFromComponentByCampReflection)                                                                      \
  ENTRY(SetProperty)                                                                                                   \
  ENTRY(LogComponentValue)                                                                                             \
  ENTRY(LogComponentArrayValue)                                                                                        \
  ENTRY(LogAllComponentProperties)                                                                                     \
  ENTRY(LogAllComponentsFromEntity)                                                                                    \
  ENTRY(WriteComponentPropertyToStringvar)                                                                             \
  ENTRY(writeComponentPropertyToEntityList)                                                                            \
  ENTRY(WriteArrayEntriesIntoEntityList)                                                                               \
  ENTRY(WriteArrayEntriesIntoTheLog)                                                                                   \
  ENTRY(AddEntryToPropertyArray)                                                                                       \
  ENTRY(RemoveEntryFromPropertyArray)                                                                                  \
  ENTRY(CreateComponentById)                                                                                           \
  ENTRY(WriteCameraEntityToEntityList)                                                                                 \
  ENTRY(WriteCoreEntityToEntityList)                                                                                   \
  ENTRY(ToggleVariableValue)                                                                                           \
  ENTRY(ToggleStringvarValue)                                                                                          \
  ENTRY(ConvertVariableToStringvar)                                                                                    \
  ENTRY(ConvertStringvarToVariable)                                                                                    \
  ENTRY(AppendStringToStringVar)
EFFECT_GROUP(ComponentsAndVariablesEffects, MANIFEST)

}
