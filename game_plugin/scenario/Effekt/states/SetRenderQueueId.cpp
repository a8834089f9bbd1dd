#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "qsf/component/ParticlesComponent.h"
#include "qsf/component/RendererComponent.h"

#include <OgreMovableObject.h>

namespace script {

struct SetRenderQueueIdEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "89, 90, negative values and values from 106 up do nothing.",
      "Each run tells the log \"bla1\" for each id and \"bla2\" for each entity.",
  };

  Argument entityList;
  Argument newValue;
};

static void read(SetRenderQueueIdEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities with particles or a renderer component");
  in.flag(2, true, "(not functional) Apply On Childs", "Without influence");
  effect.newValue = in.number(3, "0", "NewValue", "0 to 105; what has a smaller one is drawn earlier");
}

/// The renderer crashes with 89 and 90.
static bool isUsable(int id) { return id >= 0 && id < 106 && id != 89 && id != 90; }

static void setRenderQueueId(qsf::Entity& entity, int id) {
  if (const auto* particles = entity.getComponent<qsf::ParticlesComponent>()) {
    if (Ogre::MovableObject* object = particles->getOgreMovableObject())
      object->setRenderQueueGroup(static_cast<std::uint8_t>(id));
  } else if (auto* renderer = entity.getComponent<qsf::RendererComponent>()) {
    logInfo("we have a renderercomponent");
    renderer->setRenderQueueId(id);
  }
}

static void run(const SetRenderQueueIdEffect& effect, ScenarioHandler& handler) {
  const int id = truncateToInt(handler.ResolveFloat(effect.newValue));
  if (!isUsable(id)) return;
  for (const std::uint64_t entityId : handler.ResolveEntityList(effect.entityList)) {
    logInfo("bla1");
    qsf::Entity* entity = findEntity(entityId);
    if (!entity) continue;
    logInfo("bla2");
    setRenderQueueId(*entity, id);
  }
}

EFFECT(SetRenderQueueId, "Units", "Sets when entities are drawn within a picture")

}
