#include "game_plugin/event/InjuredPerson.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/component/BuildingComponent.h"
#include "em5/component/DamageComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/health/Injury.h"
#include "em5/map/EntityHelper.h"

namespace script {

struct DamageObjectEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Only the first vehicle or building of the list is damaged.",
      "In a building one person is trapped in any case.",
      "With trapped persons a vehicle without em5::RoadVehicleComponent gets none and doesn't smoulder either.",
  };

  Argument uniqueId;
  Argument entityList;
  bool trapPersons = true;
};

static void read(DamageObjectEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "EventId");
  effect.entityList = in.list(2, "no_entitylist", "EntityList", "Object which shall be damaged");
  effect.trapPersons = in.flag(3, true, "TrapPersons",
                               "If true, you have to use a axe to free one person from a building or the vehicle "
                               "cutter to free a person from a vehicle");
}

static void damageVehicle(qsf::Entity& entity, em5::VehicleComponent& vehicle, ScenarioEvent& event, bool trapPersons) {
  constexpr float BEYOND_REPAIR = 2.0f;
  vehicle.applyDamage(BEYOND_REPAIR, &event);
  qsf::Entity* used = trapPersons ? placeInjuredPersonInVehicle(entity, event, em5::injury::BURN_4_GRADE) : &entity;
  if (used) em5::EntityHelper(*used).startFire(&event);
  // The traces of the fire stay, the flames don't, nor does the objective to put them out.
  em5::EntityHelper(entity).stopFire();
  event.reduceObjectiveByText("EM5_EVENTOBJECTIVE_03", ScenarioEvent::LastOne::IS_REMOVED);
}

static void damageBuilding(qsf::Entity& entity, em5::BuildingComponent& building, ScenarioEvent& event) {
  constexpr qsf::Time TIME_TO_LIVE = qsf::Time::fromMicroseconds(300'000'000);
  entity.getOrCreateComponent<em5::DamageComponent>()->setDamageState(em5::DamageComponent::DAMAGED);
  building.setupTrappedPersons(1, 1, true, TIME_TO_LIVE);
  building.createTrappedPerson(&event);
}

static void run(const DamageObjectEffect& effect, ScenarioHandler& handler) {
  ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
  if (!event) return;
  if (hints::isOn()) hintLiteralIds(effect.entityList);
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  for (const std::uint64_t id : ids) {
    qsf::Entity* entity = findEntity(id);
    if (!entity) continue;
    if (auto* vehicle = entity->getComponent<em5::VehicleComponent>())
      return damageVehicle(*entity, *vehicle, *event, effect.trapPersons);
    if (auto* building = entity->getComponent<em5::BuildingComponent>())
      return damageBuilding(*entity, *building, *event);
  }
}

EFFECT(DamageObject, "Events", "Damages a building or a vehicle. It will not go into burning state")

}
