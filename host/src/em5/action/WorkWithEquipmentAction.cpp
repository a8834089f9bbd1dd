#include "em5/action/WorkWithEquipmentAction.h"

#include "em5/action/MoveAction.h"
#include "em5/component/DoorComponent.h"
#include "em5/component/TreeComponent.h"
#include "em5/logic/TargetPointProviders.h"
#include "em5/map/EntityHelper.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/ai/ReachObjectGoal.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

namespace em5 {

static const qsf::DeclaredClass<WorkWithEquipmentAction> declared;

void WorkWithEquipmentAction::declareCamp() {
  camp::Class::declare<WorkWithEquipmentAction>("em5::WorkWithEquipmentAction").base<Action>().constructor0();
}

void WorkWithEquipmentAction::init(const qsf::Entity& target, qsf::Time workingTime) {
  mTargetId = target.getId();
  mTimeLeft = workingTime;
}

qsf::action::Description WorkWithEquipmentAction::describe() const {
  return {{"target", std::to_string(mTargetId)}, {"time", qsf::toText(mTimeLeft.getSecondsAsDouble())}};
}

qsf::action::Result WorkWithEquipmentAction::updateAction(const qsf::Clock& clock) {
  qsf::Entity* target = getMap().getEntityById(mTargetId);
  if (!target) return qsf::action::RESULT_DONE;
  if (!qsf::logic::TargetPointProvider::isWithinReach(getEntity(), *target)) {
    if (std::exchange(mHasWalked, true)) return qsf::action::RESULT_DONE;
    walkTo(*target);
    return qsf::action::RESULT_CONTINUE;
  }
  mTimeLeft -= clock.getTimePassed();
  if (mTimeLeft > qsf::Time()) return qsf::action::RESULT_CONTINUE;
  finishOn(*target);
  return qsf::action::RESULT_DONE;
}

void WorkWithEquipmentAction::walkTo(qsf::Entity& target) {
  auto goal = std::make_unique<qsf::ai::ReachObjectGoal>(getEntity(), target,
                                                         GetEquipmentTargetPointProvider::TARGET_POINT_ID, true);
  getActionComponent()
      .pushAction<MoveAction>(getPriority(), qsf::action::INSERT_BEFORE_CURRENT)
      .init(std::move(goal), MOVEMENT_MODE_RUN);
}

void WorkWithEquipmentAction::finishOn(qsf::Entity& target) {
  const EntityHelper helper(target);
  if (helper.isBurning()) return helper.stopFire();
  if (auto* tree = target.getComponent<TreeComponent>()) tree->setBroken(true);
  if (auto* door = target.getComponent<DoorComponent>()) door->openDoor();
}

}
