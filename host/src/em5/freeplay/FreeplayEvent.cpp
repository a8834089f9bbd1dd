#include "em5/freeplay/FreeplayEvent.h"

#include "qsf/reflection/ClassRegistry.h"

#include <camp/classbuilder.hpp>

namespace em5 {

static const qsf::DeclaredClass<FreeplayEvent> declared;

void FreeplayEvent::declareCamp() { camp::Class::declare<FreeplayEvent>("em5::FreeplayEvent").base<qsf::Object>(); }

void FreeplayEvent::setRunning() {
  if (mState != State::PREPARED) return;
  mState = State::RUNNING;
  onRun();
}

bool FreeplayEvent::finish(State result) {
  const bool mayEnd = result == State::SUCCEEDED ? mCanWinEvent : result == State::FAILED && mCanLoseEvent;
  if (!isRunning() || !mayEnd) return false;
  mState = result;
  if (result == State::SUCCEEDED)
    onSuccess();
  else
    onFailure();
  return true;
}

void FreeplayEvent::updateFreeplayEvent(qsf::Time) {
  if (mSucceedsAfter > qsf::Time() && mRunningTime >= mSucceedsAfter) finish(State::SUCCEEDED);
  if (mFailsAfter > qsf::Time() && mRunningTime >= mFailsAfter) finish(State::FAILED);
}

}
