#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/action/GetEquipmentAction.h"
#include "em5/action/MoveAction.h"
#include "em5/action/TurnToAction.h"
#include "em5/component/HelicopterComponent.h"
#include "em5/gui/HintHelper.h"
#include "em5/logic/TargetPointProviders.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/ai/ReachObjectGoal.h"
#include "qsf/game/InventoryComponent.h"
#include "qsf/map/ComponentMapQuery.h"

namespace script {

struct GetEquipmentEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "If one entity finds no vehicle, a hint shows and those behind it in the list get nothing either.",
      "The way to the vehicle goes in front of the plan, the turn and the grip to its end.",
  };

  Argument callers;
  Argument equipment;
  Argument localAssetName;
  bool isFromVehicle = true;
};

static void read(GetEquipmentEffect& effect, ParameterReader& in) {
  effect.callers = in.list(1, "no_list", "EntityList Caller", "Persons that get it");
  effect.equipment = in.raw(2, "no_equipment", "Equipment", "Name of the equipment, like axe");
  effect.localAssetName =
      in.prefab(3, "no_equipment_local_asset_name", "Equipment Local Asset Name",
                "Name of its prefab, like em5/prefab/test/axe, by which helicopters have it on board");
  effect.isFromVehicle = in.flag(4, true, "Equipment must be gained from vehicle",
                                 "They go to the nearest vehicle that has it on board; else they get it at once");
}

static std::vector<qsf::Entity*> findVehicles(const GetEquipmentEffect& effect, qsf::Entity& caller) {
  std::vector<qsf::Entity*> vehicles;
  if (qsf::Entity* vehicle = em5::EntityHelper(caller).getReachableRoadVehicleWithEquipment(effect.equipment))
    vehicles.push_back(vehicle);
  const qsf::ComponentMapQuery query(qsf::getMainMap());
  for (const qsf::Component* component : query.getAllInstancesById(em5::HelicopterComponent::COMPONENT_ID)) {
    qsf::Entity& entity = component->getEntity();
    const auto* inventory = entity.getComponent<qsf::game::InventoryComponent>();
    if (!static_cast<const em5::HelicopterComponent*>(component)->isFlying() && inventory &&
        inventory->hasItem(effect.localAssetName) && em5::EntityHelper(entity).isSquadVehicleInValidState())
      vehicles.push_back(&entity);
  }
  return vehicles;
}

/// Null if there is none. Of equally close ones the road vehicle, then the first helicopter.
static qsf::Entity* findClosestVehicle(const GetEquipmentEffect& effect, qsf::Entity& caller) {
  qsf::Entity* closest = nullptr;
  float closestDistance = 9999.0f;
  for (qsf::Entity* vehicle : findVehicles(effect, caller)) {
    const float distance = distanceBetween(*vehicle, caller);
    if (!(distance < closestDistance)) continue;
    closest = vehicle;
    closestDistance = distance;
  }
  return closest;
}

static void fetchFrom(qsf::Entity& vehicle, qsf::Entity& caller, const std::string& equipment) {
  qsf::ActionComponent& actions = actionsOf(caller);
  actions.pushAction<em5::MoveAction>(100, qsf::action::INSERT_AT_FRONT)
      .init(std::make_unique<qsf::ai::ReachObjectGoal>(caller, vehicle,
                                                       em5::GetEquipmentTargetPointProvider::TARGET_POINT_ID, true),
            qsf::getUninitialized<unsigned int>(), nullptr, qsf::Time::ZERO);
  actions.pushAction<em5::TurnToAction>(100, qsf::action::APPEND_TO_BACK).init(vehicle, false, 270.0f);
  actions.pushAction<em5::GetEquipmentAction>(200, qsf::action::APPEND_TO_BACK).init(vehicle, equipment);
}

static void run(const GetEquipmentEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintLiteralIds(effect.callers);
  for (const std::uint64_t id : handler.ResolveEntityList(effect.callers)) {
    qsf::Entity* caller = findEntity(id);
    if (!caller) continue;
    if (!effect.isFromVehicle) {
      actionsOf(*caller)
          .pushAction<em5::GetEquipmentAction>(200, qsf::action::APPEND_TO_BACK)
          .init(effect.equipment, -1);
    } else if (qsf::Entity* vehicle = findClosestVehicle(effect, *caller)) {
      fetchFrom(*vehicle, *caller, effect.equipment);
    } else {
      em5::HintHelper::showHint("ID_HINT_FIREFIGHTER_NORW", 0, qsf::Time::fromSeconds(30));
      return;
    }
  }
}

EFFECT(GetEquipment, "Actions", "Lets persons fetch a piece of equipment from a vehicle, or gives it to them")

}
