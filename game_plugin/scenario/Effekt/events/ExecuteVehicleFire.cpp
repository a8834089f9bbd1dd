#include "game_plugin/event/InjuredPerson.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/health/Injury.h"
#include "em5/map/EntityHelper.h"

namespace script {

struct ExecuteVehicleFireEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "With a person inside only road vehicles burn; without one whatever can burn does.",
      "Without the event nothing burns.",
  };

  Argument entityList;
  bool personInside = true;
  Argument uniqueId;
};

static void read(ExecuteVehicleFireEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "");
  effect.entityList = in.list(2, "empty_list", "EntityList", "Name of the entityList you want to use");
  effect.personInside =
      in.flag(3, true, "Person Inside", "If true, a person will be spawned inside which must be rescued");
}

static void run(const ExecuteVehicleFireEffect& effect, ScenarioHandler& handler) {
  ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
  if (!event) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    qsf::Entity* vehicle =
        effect.personInside ? placeInjuredPersonInVehicle(entity, *event, em5::injury::BURN_4_GRADE) : &entity;
    if (vehicle) em5::EntityHelper(*vehicle).startFire(event);
  });
}

EFFECT(ExecuteVehicleFire, "Events",
       "Set a vehicle on fire. Entity must have the em5::RoadvehicleComponent. All Objectives are assigned to "
       "script::ScenarioEvent")

}
