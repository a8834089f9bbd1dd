#include "qsf/ai/ReachObjectGoal.h"
#include "qsf/ai/ReachSinglePointGoal.h"

#include "qsf/log/LogSystem.h"
#include "qsf/logic/TargetPointProvider.h"
#include "qsf/map/EntityHelper.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/PropertyText.h"

namespace qsf::ai {

std::optional<logic::TargetPoint> ReachSinglePointGoal::getTargetPoint(Entity& /*mover*/) { return mTargetPoint; }

action::Description ReachSinglePointGoal::describe() const {
  action::Description description{{"target", toText(mTargetPoint.getPosition())},
                                  {"position", toText(mTargetPoint.getPosition())}};
  if (mTargetPoint.getRotation()) description.emplace_back("rotation", toText(*mTargetPoint.getRotation()));
  return description;
}

ReachObjectGoal::ReachObjectGoal(Entity& /*mover*/, Entity& target, StringHash targetPointId, bool follow)
    : mTargetId(target.getId()), mTargetPointId(targetPointId), mFollow(follow) {}

std::optional<logic::TargetPoint> ReachObjectGoal::getTargetPoint(Entity& mover) {
  Entity* target = mover.getMap().getEntityById(mTargetId);
  if (!target || EntityHelper(*target).movesAlongWith(mover)) return std::nullopt;
  const EntityHelper helper(*target);
  const bool hasMoved = helper.getPosition() != mSeenPosition || helper.getRotation() != mSeenRotation;
  if (mTargetPoint && mFollow && hasMoved && logic::TargetPointProvider::isWithinReach(mover, *target))
    mTargetPoint = logic::TargetPoint(EntityHelper(mover).getPosition()); // near enough to one that moves away
  else if (!mTargetPoint || (mFollow && hasMoved))
    mTargetPoint = computeTargetPoint(mover, *target);
  mSeenPosition = helper.getPosition();
  mSeenRotation = helper.getRotation();
  return mTargetPoint;
}

logic::TargetPoint ReachObjectGoal::computeTargetPoint(Entity& mover, Entity& target) {
  if (const auto provider = logic::TargetPointProvider::createById(mTargetPointId))
    return provider->computeTargetPoint(mover, target);
  if (!std::exchange(mHasWarned, true))
    logMessage(LogSystem::WARNING, "There is no target point provider \"" + toText(mTargetPointId) + "\"; entity " +
                                       std::to_string(mover.getId()) + " goes to the edge of entity " +
                                       std::to_string(target.getId()));
  return logic::TargetPointProvider().computeTargetPoint(mover, target);
}

action::Description ReachObjectGoal::describe() const {
  return {{"target", std::to_string(mTargetId)}, {"provider", toText(mTargetPointId)}};
}

}
