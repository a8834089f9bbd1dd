#include "game_plugin/plugin/CampClasses.h"

#include "game_plugin/action/PlayLocalSoundWithCustomVolume.h"
#include "game_plugin/action/SetCampPropertyAction.h"
#include "game_plugin/action/UseEquipmentAction.h"
#include "game_plugin/action/WaitUntilPropertyIsValue.h"
#include "game_plugin/command/ScriptedCommand.h"
#include "game_plugin/command/ToggleLayerCommand.h"
#include "game_plugin/component/EventTargetComponent.h"
#include "game_plugin/component/MP_LOG_COMPONENT.h"
#include "game_plugin/component/MeshAnimationComponent.h"
#include "game_plugin/component/MultiplayerSynchronizationHelperComponent.h"
#include "game_plugin/component/MultiplayerSynchronizationMasterComponent.h"
#include "game_plugin/component/NewDoorComponent.h"
#include "game_plugin/component/OpenHouseComponent.h"
#include "game_plugin/component/ScenarioCommandableComponent.h"
#include "game_plugin/component/SmokeComponent.h"
#include "game_plugin/event/ScenarioEvent.h"
#include "game_plugin/event/ScenarioEventFactory.h"

namespace script {

namespace {

template <class T> const camp::Class* declareOnce() {
  static const bool declared = (T::declareCamp(), true);
  static_cast<void>(declared);
  return &camp::classByType<T>();
}

}

std::vector<const camp::Class*> declareCampClasses() {
  return {
      declareOnce<UseEquipmentAction>(),
      declareOnce<SetCampPropertyAction>(),
      declareOnce<WaitUntilPropertyIsValue>(),
      declareOnce<PlayLocalSoundWithCustomVolume>(),
      declareOnce<MouseClickDummyCommand>(),
      declareOnce<ToggleLayerCommand>(),
      declareOnce<CommandbarButton1>(),
      declareOnce<ScenarioEventFactory>(),
      declareOnce<ScenarioEvent>(),
      declareOnce<ScenarioCommandableComponent>(),
      declareOnce<EventTargetComponent>(),
      declareOnce<MultiplayerSynchronizationHelperComponent>(),
      declareOnce<MultiplayerSynchronizationMasterComponent>(),
      declareOnce<SmokeComponent>(),
      declareOnce<bt::NewDoorComponent>(),
      declareOnce<OpenHouseComponent>(),
      declareOnce<MP_LOG_COMPONENT>(),
      declareOnce<scenario::MeshAnimationComponent>(),
  };
}

}
