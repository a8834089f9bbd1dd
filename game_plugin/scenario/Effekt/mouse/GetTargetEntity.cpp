#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/EmergencyGui.h"
#include "em5/map/RayMapQuery.h"
#include "qsf/Qsf.h"
#include "qsf/component/TerrainComponent.h"

namespace script {

struct GetTargetEntityEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The list keeps what it holds, and over bare ground it stays as it is.",
  };

  Argument entityVariable;
};

static void read(GetTargetEntityEffect& effect, ParameterReader& in) {
  effect.entityVariable = in.listOut(1, "no_var", "EntityVariable", "Gets the entity under the mouse");
}

static void run(const GetTargetEntityEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityVariable.text(), "no_var", "GetTargetEntityEffect::EntityVariable was not found")) return;
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (!gui) return;
  const glm::vec2 cursor = gui->getGuiContext().getNormalizedMouseCursorPosition();
  const qsf::Entity* entity = em5::RayMapQuery(qsf::getMainMap()).getEntityUnderNormalizedMousePosition(cursor);
  if (entity && !entity->getComponent<qsf::TerrainComponent>())
    handler.AddToEntityList(effect.entityVariable, entity->getId());
}

EFFECT(GetTargetEntity, "Units", "Adds the entity under the mouse to a list")

}
