#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/BuildingComponent.h"
#include "em5/component/DamageComponent.h"
#include "em5/component/FireComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/logic/FleeFromFireLogic.h"
#include "em5/map/EntityHelper.h"
#include "qsf/logic/GameLogicComponent.h"
#include "qsf/map/ComponentMapQuery.h"

namespace script {

struct BuildingExplodeEffect : DefaultEffect {
  Argument entityList;
  Argument explosionRadius;
  Argument uniqueId;
};

static void read(BuildingExplodeEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "");
  effect.entityList = in.list(2, "empty_list", "EntityList", "A list of all effected buildings");
  effect.explosionRadius = in.number(3, "5", "ExplosionRadius", "How large is the radius of objects getting on fire");
}

/// Returns the number of fires.
static std::size_t light(const std::vector<em5::FireComponent*>& fires, ScenarioEvent& event) {
  std::size_t lit = 0;
  for (em5::FireComponent* fire : fires) {
    if (em5::EntityHelper(fire->getEntity()).isVehicle() || !fire->isBurnable() || fire->isBurning()) continue;
    fire->startFire(&event);
    ++lit;
  }
  return lit;
}

static void explode(qsf::Entity& entity, const em5::BuildingComponent& building, float radius, ScenarioEvent& event) {
  const glm::vec3 center = building.getExplosionCenterWorldSpacePosition();
  const qsf::ComponentMapQuery query(entity.getMap());
  const auto fires = query.getInstancesInCircle<em5::FireComponent>(center, radius);
  const auto persons = query.getInstancesInCircle<em5::PersonComponent>(center, radius);
  if (light(fires, event) == 0) em5::EntityHelper(entity).startFire(&event);
  for (const em5::PersonComponent* person : persons) {
    qsf::Entity& someone = person->getEntity();
    if (!em5::EntityHelper(someone).isCivilPersonInValidState()) continue;
    someone.getOrCreateComponent<qsf::GameLogicComponent>()->createGameLogicByTypeId(
        em5::FleeFromFireLogic::GAME_LOGIC_ID);
  }
  if (const auto* damage = entity.getComponent<em5::DamageComponent>()) damage->showExplosionFireParticles();
}

static void run(const BuildingExplodeEffect& effect, ScenarioHandler& handler) {
  ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
  if (!event) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    if (const auto* building = entity.getComponent<em5::BuildingComponent>())
      explode(entity, *building, handler.ResolveFloat(effect.explosionRadius), *event);
  });
}

EFFECT(BuildingExplode, "Events",
       "Set a building on fire. Can set objects close to the building on fire too. Objectives will be added to "
       "script::ScenarioEvent")

}
