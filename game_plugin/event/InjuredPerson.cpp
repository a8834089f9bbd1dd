#include "game_plugin/event/InjuredPerson.h"

#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/action/FullBrakeAction.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/RoadVehicleComponent.h"
#include "em5/component/SpawnPointComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/map/EntityHelper.h"
#include "em5/spawn/SpawnPoolManager.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/component/TransformComponent.h"

namespace script {

namespace {

constexpr unsigned int BRAKE_PRIORITY = 100;

void putPersonInto(qsf::Entity& vehicle, em5::FreeplayEvent& event, qsf::StringHash injury) {
  const auto* transform = vehicle.getComponent<qsf::TransformComponent>();
  qsf::Entity* person = em5::SpawnPointComponent::spawnRandomAt(
      vehicle.getMap(), em5::assets::SPAWNPOOL_DEFAULT_PERSON, positionOf(vehicle),
      transform ? transform->getRotation() : glm::quat(1, 0, 0, 0));
  if (!person) return;
  em5::EntityHelper(*person).enterContainer(vehicle);
  person->getOrCreateComponent<em5::HealthComponent>()->injurePersonByEventById(injury, &event, true);
}

}

qsf::Entity* placeInjuredPersonInVehicle(qsf::Entity& vehicle, em5::FreeplayEvent& event, qsf::StringHash injury) {
  if (!vehicle.getComponent<em5::RoadVehicleComponent>()) return nullptr;
  putPersonInto(vehicle, event, injury);
  if (auto* component = vehicle.getComponent<em5::VehicleComponent>()) component->setCanBeCut(true, &event);
  auto* actions = vehicle.getOrCreateComponent<qsf::ActionComponent>();
  actions->clearPlan();
  actions->pushAction<em5::FullBrakeAction>(BRAKE_PRIORITY);
  return &vehicle;
}

}
