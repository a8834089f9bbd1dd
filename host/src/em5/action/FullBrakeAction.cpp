#include "em5/action/FullBrakeAction.h"

#include "em5/component/RoadVehicleComponent.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

constexpr qsf::Time HOLD = qsf::Time::fromMicroseconds(1'000'000);

}

static const qsf::DeclaredClass<FullBrakeAction> declared;

void FullBrakeAction::declareCamp() {
  camp::Class::declare<FullBrakeAction>("em5::FullBrakeAction").base<Action>().constructor0();
}

bool FullBrakeAction::onStartup() {
  if (!getEntity().getComponent<qsf::MovableComponent>()) return false;
  if (auto* vehicle = getEntity().getComponent<RoadVehicleComponent>()) vehicle->setBrakeLight(true);
  mTimeLeft = HOLD;
  return true;
}

qsf::action::Result FullBrakeAction::updateAction(const qsf::Clock& clock) {
  if (auto* movable = getEntity().getComponent<qsf::MovableComponent>()) movable->stopMoving();
  mTimeLeft -= clock.getTimePassed();
  return mTimeLeft > qsf::Time() ? qsf::action::RESULT_CONTINUE : qsf::action::RESULT_DONE;
}

void FullBrakeAction::onShutdown() {
  if (auto* vehicle = getEntity().getComponent<RoadVehicleComponent>()) vehicle->setBrakeLight(false);
}

}
