#include "game_plugin/scenario/program/EntryGroup.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"

namespace script {

// The entries in the order in which they are asked; each stands in a file of its name.
#define MANIFEST(ENTRY)                                                                                                \
  ENTRY(BuildString)                                                                                                   \
  ENTRY(LoadRmlFile)                                                                                                   \
  ENTRY(ConnectButtonToTrigger)                                                                                        \
  ENTRY(ShowElement)                                                                                                   \
  ENTRY(ShowGuiDocument)                                                                                               \
  ENTRY(SetInnerRML)                                                                                                   \
  ENTRY(SetAttribute)                                                                                                  \
  ENTRY(AddOrRemoveClass)                                                                                              \
  ENTRY(AddEventListerToExistingGuiElements)                                                                           \
  ENTRY(SetAttributeFromExistingGUI)                                                                                   \
  ENTRY(SetInnerRMLFromExistingGUI)                                                                                    \
  ENTRY(AbortVideo)                                                                                                    \
  ENTRY(ShowMainMenuGui)                                                                                               \
  ENTRY(ShowMouseCursor)                                                                                               \
  ENTRY(SimulateHotKeyPress)                                                                                           \
  ENTRY(WriteRMLDocument)                                                                                              \
  ENTRY(WriteRMLClientWidthIntoVariable)                                                                               \
  ENTRY(SimulateClickAtGUIButton)                                                                                      \
  ENTRY(ProcessGUIEvent)                                                                                               \
  ENTRY(CheckGUIAddress)                                                                                               \
  ENTRY(ReloadGui)                                                                                                     \
  ENTRY(CreateAudioTracker)
EFFECT_GROUP(ScenarioEffects_Gui, MANIFEST)

}
