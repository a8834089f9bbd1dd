#include "em5/freeplay/FreeplayEvent.h"

#include "em5/component/EventIdComponent.h"
#include "em5/freeplay/EventArchive.h"
#include "em5/gui/HintHelper.h"
#include "qsf/Qsf.h"
#include "qsf/base/Random.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/ClassRegistry.h"

#include <camp/classbuilder.hpp>

#include <algorithm>

namespace em5 {

static const qsf::DeclaredClass<FreeplayEvent> declared;

static constexpr const char* TIME_IS_OVER = "its time is over";

void FreeplayEvent::declareCamp() {
  camp::Class::declare<FreeplayEvent>("em5::FreeplayEvent").base<qsf::Object>().constructor0();
}

void FreeplayEvent::setRunning() {
  if (mState == State::PREPARED) mState = State::RUNNING;
}

bool FreeplayEvent::onRun() {
  setRunning();
  return true;
}

bool FreeplayEvent::finish(State result, const std::string& reason) {
  const bool mayEnd = result == State::SUCCEEDED ? mCanWinEvent : result == State::FAILED && mCanLoseEvent;
  if (!isRunning() || !mayEnd) return false;
  mState = result;
  mEndReason = reason;
  if (result == State::SUCCEEDED)
    onSuccess();
  else
    onFailure();
  return true;
}

void FreeplayEvent::checkObjectivesState() {
  const auto& objectives = mObjectives.getObjectives();
  const auto isReachedFailure = [](const auto& objective) {
    return objective->getType() == OBJECTIVE_FAIL && objective->isReached();
  };
  const auto isRequired = [](const auto& objective) { return objective->getType() == OBJECTIVE_REQUIRED; };
  const auto isOpen = [&](const auto& objective) { return isRequired(objective) && !objective->isReached(); };
  const auto failure = std::ranges::find_if(objectives, isReachedFailure);
  if (failure != objectives.end() && finish(State::FAILED, (*failure)->getShownText())) return;
  if (std::ranges::none_of(objectives, isOpen))
    finish(State::SUCCEEDED, std::ranges::any_of(objectives, isRequired) ? "all required objectives are reached"
                                                                         : "there is no required objective");
}

void FreeplayEvent::addEntityToEvent(qsf::Entity& entity, int reason, bool evenIfInEvent) {
  auto* membership = entity.getOrCreateComponent<EventIdComponent>();
  if (evenIfInEvent)
    membership->setEvent(*this, reason);
  else
    membership->addToEvent(*this, reason);
}

std::vector<qsf::Entity*> FreeplayEvent::getEntities() const {
  std::vector<qsf::Entity*> entities;
  for (const qsf::Component* component : qsf::getMainMap().getComponentInstances(EventIdComponent::COMPONENT_ID))
    if (static_cast<const EventIdComponent*>(component)->getEventId() == mId)
      entities.push_back(&component->getEntity());
  return entities;
}

qsf::Entity* FreeplayEvent::getRandomVisibleEventEntity() const {
  std::vector<qsf::Entity*> entities = getEntities();
  std::erase_if(entities, [](const qsf::Entity* entity) { return entity->isHidden(); });
  if (entities.empty()) return nullptr;
  return entities[qsf::Random::getRandomUint(0, static_cast<std::uint32_t>(entities.size() - 1))];
}

void FreeplayEvent::showEventStartHint(const EventHintParameters& hintParameters) {
  HintHelper::showSupervisorMessage(HintHelper::getRandomStringOfIdString(hintParameters.supervisorMessage));
}

void FreeplayEvent::serialize(EventArchive& archive) {
  archive.member("id", mId);
  archive.member("eventName", mEventName);
  archive.member("definition", mDefinition);
  archive.member("supervisorMessage", mHintParameters.supervisorMessage);
  archive.member("runningTime", mRunningTime);
  archive.member("succeedsAfter", mSucceedsAfter);
  archive.member("failsAfter", mFailsAfter);
  archive.member("canLose", mCanLoseEvent);
  archive.member("canWin", mCanWinEvent);
  archive.member("countsBurningObjects", mCountsBurningObjects);
  archive.member("countsDeadPersons", mCountsDeadPersons);
  archive.member("deadIds", mDeadIds);
  mObjectives.serialize(archive);
}

void FreeplayEvent::updateFreeplayEvent(qsf::Time) {
  if (mSucceedsAfter > qsf::Time() && mRunningTime >= mSucceedsAfter) finish(State::SUCCEEDED, TIME_IS_OVER);
  if (mFailsAfter > qsf::Time() && mRunningTime >= mFailsAfter) finish(State::FAILED, TIME_IS_OVER);
}

}
