#include "em5/action/EnterVehicleAction.h"

#include "em5/action/MoveAction.h"
#include "em5/base/Messages.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/logic/TargetPointProviders.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/ai/ReachObjectGoal.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

bool canEnter(const qsf::Entity& person) {
  const auto* health = person.getComponent<HealthComponent>();
  return person.getComponent<PersonComponent>() && !(health && health->isDead());
}

/// Null unless it can be entered.
qsf::Entity* findVehicle(const qsf::Map& map, std::uint64_t id) {
  qsf::Entity* vehicle = map.getEntityById(id);
  const auto* component = vehicle ? vehicle->getComponent<VehicleComponent>() : nullptr;
  return vehicle && EntityHelper(*vehicle).isVehicle() && !(component && component->isDestroyed()) ? vehicle : nullptr;
}

}

static const qsf::DeclaredClass<EnterVehicleAction> declared;

void EnterVehicleAction::declareCamp() {
  camp::Class::declare<EnterVehicleAction>("em5::EnterVehicleAction").base<Action>().constructor0();
}

void EnterVehicleAction::init(const qsf::Entity& vehicle, int approach) {
  mVehicleId = vehicle.getId();
  mApproach = approach;
}

qsf::action::Description EnterVehicleAction::describe() const {
  return {{"target", std::to_string(mVehicleId)}, {"approach", std::to_string(mApproach)}};
}

bool EnterVehicleAction::onStartup() { return canEnter(getEntity()) && findVehicle(getMap(), mVehicleId); }

qsf::action::Result EnterVehicleAction::updateAction(const qsf::Clock&) {
  qsf::Entity* vehicle = findVehicle(getMap(), mVehicleId);
  if (!vehicle || vehicle == &getEntity() || !canEnter(getEntity())) return qsf::action::RESULT_DONE;
  if (mApproach != AT_ONCE && !qsf::logic::TargetPointProvider::isWithinReach(getEntity(), *vehicle)) {
    if (std::exchange(mHasWalked, true)) return qsf::action::RESULT_DONE;
    walkTo(*vehicle);
    return qsf::action::RESULT_CONTINUE;
  }
  if (auto* transform = getEntity().getComponent<qsf::TransformComponent>())
    transform->setPosition(EntityHelper(*vehicle).getPosition());
  EntityHelper(getEntity()).enterContainer(*vehicle);
  if (const qsf::Qsf* host = qsf::Qsf::instance())
    host->getMessageSystem().emitMessage(
        qsf::MessageConfiguration(Messages::EM5_ACTION_ENTER_VEHICLE, getEntityId(), mVehicleId));
  return qsf::action::RESULT_DONE;
}

void EnterVehicleAction::walkTo(qsf::Entity& vehicle) {
  auto goal = std::make_unique<qsf::ai::ReachObjectGoal>(getEntity(), vehicle,
                                                         EnterVehicleTargetPointProvider::TARGET_POINT_ID, true);
  getActionComponent()
      .pushAction<MoveAction>(getPriority(), qsf::action::INSERT_BEFORE_CURRENT)
      .init(std::move(goal), mApproach == RUN ? MOVEMENT_MODE_RUN : MOVEMENT_MODE_DEFAULT);
}

}
