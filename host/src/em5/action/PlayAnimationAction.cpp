#include "em5/action/PlayAnimationAction.h"

#include "em5/map/AnimationHelper.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

namespace em5 {

static const qsf::DeclaredClass<PlayAnimationAction> declared;

void PlayAnimationAction::declareCamp() {
  camp::Class::declare<PlayAnimationAction>("em5::PlayAnimationAction").base<Action>().constructor0();
}

void PlayAnimationAction::init(const std::string& animation, bool waitForFinish, bool loop, bool reverse,
                               qsf::Time blendTime, std::optional<qsf::Time> timeLimit) {
  mAnimation = animation;
  mWaitForFinish = waitForFinish;
  mLoop = loop;
  mReverse = reverse;
  mBlendTime = blendTime;
  mTimeLimit = timeLimit;
}

qsf::action::Description PlayAnimationAction::describe() const {
  qsf::action::Description description{{"animation", mAnimation},
                                       {"wait", mWaitForFinish ? "1" : "0"},
                                       {"loop", mLoop ? "1" : "0"},
                                       {"reverse", mReverse ? "1" : "0"},
                                       {"blend", qsf::toText(mBlendTime.getSecondsAsDouble())},
                                       {"time", qsf::toText(mBlendTime.getSecondsAsDouble())}};
  if (mTimeLimit) description.emplace_back("limit", qsf::toText(mTimeLimit->getSecondsAsDouble()));
  return description;
}

bool PlayAnimationAction::onStartup() {
  mPassed = qsf::Time();
  mChannel = AnimationHelper(getEntity()).playAnimation(mAnimation, mLoop, mReverse, mBlendTime);
  return true;
}

qsf::action::Result PlayAnimationAction::updateAction(const qsf::Clock& clock) {
  if (!isWaiting() || !mChannel || mChannel->isFinished()) return qsf::action::RESULT_DONE;
  const bool isOver = mTimeLimit && mPassed >= *mTimeLimit;
  mPassed += clock.getTimePassed();
  return isOver ? qsf::action::RESULT_DONE : qsf::action::RESULT_CONTINUE;
}

void PlayAnimationAction::onShutdown() {
  auto* component = getEntity().getComponent<qsf::MeshAnimationComponent>();
  if (isWaiting() && mChannel && component && component->getChannel() == mChannel) component->clearAnimation();
  mChannel.reset();
}

}
