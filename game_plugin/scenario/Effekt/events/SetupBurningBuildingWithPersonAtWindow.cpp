#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/component/BuildingComponent.h"
#include "em5/component/SpawnPointComponent.h"
#include "em5/map/EntityHelper.h"
#include "em5/spawn/SpawnPoolManager.h"

namespace script {

struct SetupBurningBuildingWithPersonAtWindowEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Without the event the first building has its person inside, but nobody waves and nothing burns.",
      "A missing event is logged twice.",
      "What is no building ends the effect; what doesn't exist is passed over.",
  };

  Argument entityList;
  Argument uniqueId;
};

static void read(SetupBurningBuildingWithPersonAtWindowEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "");
  effect.entityList = in.list(2, "empty_list", "EntityList", "A list of all effected buildings");
}

/// Null if the pool makes nobody.
static qsf::Entity* putPersonInto(qsf::Entity& building) {
  qsf::Entity* person = em5::SpawnPointComponent::spawnRandomAt(
      building.getMap(), em5::assets::SPAWNPOOL_DEFAULT_PERSON, glm::vec3(0, 0, 0), glm::quat(1, 0, 0, 0));
  if (person) em5::EntityHelper(*person).enterContainer(building);
  return person;
}

static void run(const SetupBurningBuildingWithPersonAtWindowEffect& effect, ScenarioHandler& handler) {
  constexpr float FOR_SURE = 1.0f;
  if (hints::isOn()) hintLiteralIds(effect.entityList);
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  for (const std::uint64_t id : ids) {
    qsf::Entity* entity = findEntity(id);
    if (!entity) continue;
    auto* building = entity->getComponent<em5::BuildingComponent>();
    if (!building) return;
    qsf::Entity* person = putPersonInto(*entity);
    ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
    if (!event) {
      logInfo("ScenarioEvent is a nullptr");
      return;
    }
    if (person) building->letPersonWaveOutOfWindow(*person, event, FOR_SURE);
    em5::EntityHelper(*entity).startFire(event);
  }
}

EFFECT(SetupBurningBuildingWithPersonAtWindow, "Events",
       "Set a building on fire and trap a person on the event window (rescue with dlk). Objectives will be added to "
       "script::ScenarioEvent")

}
