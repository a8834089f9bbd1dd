#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/component/IndustrialPlantComponent.h"
#include "em5/map/EntityHelper.h"

namespace script {

struct ExecuteIndustrialPlantFireEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Each run logs how many ids the list holds.",
      "Without the event the plant burns all the same, for nobody.",
  };

  Argument entityList;
  Argument uniqueId;
};

static void read(ExecuteIndustrialPlantFireEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "");
  effect.entityList = in.list(2, "empty_list", "EntityList", "Name of the entityList you want to use");
}

static void run(const ExecuteIndustrialPlantFireEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintLiteralIds(effect.entityList);
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  logInfo(std::to_string(ids.size()));
  ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
  for (const std::uint64_t id : ids) {
    qsf::Entity* entity = findEntity(id);
    auto* plant = entity ? entity->getComponent<em5::IndustrialPlantComponent>() : nullptr;
    if (!plant) continue;
    plant->startSimulation();
    em5::EntityHelper(*entity).startFire(event);
  }
}

EFFECT(ExecuteIndustrialPlantFire, "Events",
       "Set a building on fire. Entity must have the em5::IndustrialPlantComponent. A contamination cloud should "
       "appear! Objectives will be added to script::ScenarioEvent")

}
