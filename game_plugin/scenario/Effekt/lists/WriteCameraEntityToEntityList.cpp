#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/component/CameraComponent.h"
#include "qsf/window/RenderWindow.h"
#include "qsf/window/WindowApplication.h"

namespace script {

struct WriteCameraEntityToEntityListEffect : DefaultEffect {
  Argument entityListOut;
};

static void read(WriteCameraEntityToEntityListEffect& effect, ParameterReader& in) {
  effect.entityListOut =
      in.listOut(1, "no_list", "EntityListOut", "Outputs the entity which contains the PlayerCamera");
}

static void run(const WriteCameraEntityToEntityListEffect& effect, ScenarioHandler& handler) {
  handler.ClearEntityList(effect.entityListOut);
  const qsf::UniqueInstance<qsf::WindowApplication> application;
  const qsf::CameraComponent* camera = application ? application->getRenderWindow().getCameraComponent() : nullptr;
  if (camera) handler.AddToEntityList(effect.entityListOut, camera->getEntityId());
}

EFFECT(WriteCameraEntityToEntityList, "EntityLists",
       "Write the Entity which contains the PlayerCamera to a EntityList which is cleared before. We expect that it "
       "should have the id=1")

}
