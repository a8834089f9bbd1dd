#include "em5/action/WorkAtTargetAction.h"

#include "em5/action/MoveAction.h"
#include "em5/logic/TargetPointProviders.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/ai/ReachObjectGoal.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

#include <utility>

namespace em5 {

void WorkAtTargetAction::declareCamp() {
  camp::Class::declare<WorkAtTargetAction>("em5::WorkAtTargetAction").base<Action>();
}

void WorkAtTargetAction::init(const qsf::Entity& target, qsf::Time workingTime) {
  mTargetId = target.getId();
  mTimeLeft = workingTime;
}

qsf::action::Description WorkAtTargetAction::describe() const {
  return {{"target", std::to_string(mTargetId)}, {"time", qsf::toText(mTimeLeft.getSecondsAsDouble())}};
}

qsf::action::Result WorkAtTargetAction::updateAction(const qsf::Clock& clock) {
  qsf::Entity* target = getMap().getEntityById(mTargetId);
  if (!target) return qsf::action::RESULT_DONE;
  qsf::Entity& place = getPlaceOf(*target);
  if (!qsf::logic::TargetPointProvider::isWithinReach(getEntity(), place)) {
    if (std::exchange(mHasGone, true)) return qsf::action::RESULT_DONE;
    goTo(place);
    return qsf::action::RESULT_CONTINUE;
  }
  mTimeLeft -= clock.getTimePassed();
  if (mTimeLeft > qsf::Time()) return qsf::action::RESULT_CONTINUE;
  finishOn(*target);
  return qsf::action::RESULT_DONE;
}

qsf::StringHash WorkAtTargetAction::getTargetPointId() const {
  return GetEquipmentTargetPointProvider::TARGET_POINT_ID;
}

void WorkAtTargetAction::goTo(qsf::Entity& place) {
  auto goal = std::make_unique<qsf::ai::ReachObjectGoal>(getEntity(), place, getTargetPointId(), true);
  getActionComponent()
      .pushAction<MoveAction>(getPriority(), qsf::action::INSERT_BEFORE_CURRENT)
      .init(std::move(goal), MOVEMENT_MODE_RUN);
}

}
