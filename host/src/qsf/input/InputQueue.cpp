#include "qsf/base/RecordedOperation.h"
#include "qsf/input/InputSystem.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"

#include <algorithm>

namespace qsf {

namespace {

const RecordedOperation addEventToInputQueueCall{"qsf::InputSystem::addEventToInputQueue",
                                                 "name of the key, `1` if it is pressed"};

}

KeyboardEvent::~KeyboardEvent() = default;

InputListener::InputListener(InputSystem& input) : mInput(input) { mInput.mListeners.push_back(this); }

InputListener::~InputListener() {
  auto& listeners = mInput.mListeners;
  const auto found = std::find(listeners.begin(), listeners.end(), this);
  if (mInput.mDelivering)
    *found = nullptr;
  else
    listeners.erase(found);
}

void InputSystem::addEventToInputQueue(std::unique_ptr<KeyboardEvent> event) {
  addEventToInputQueueCall.record({event->getButton().getName(), event->isPressed() ? "1" : "0"});
  if (mQueue.size() < MOST_EVENTS) {
    mQueue.push_back(std::move(event));
    return;
  }
  if (!std::exchange(mBoundTold, true))
    logMessage(LogSystem::ERROR, "The input queue holds " + std::to_string(MOST_EVENTS) +
                                     " events; what comes further in this frame is dropped");
}

void InputSystem::deliverEvents() {
  mBoundTold = false;
  if (mQueue.empty() || mDelivering) return;
  std::vector<std::unique_ptr<KeyboardEvent>> events;
  events.swap(mQueue);
  mDelivering = true;
  for (const auto& event : events)
    tellListeners(*event);
  mDelivering = false;
  std::erase(mListeners, nullptr);
}

/// Those that come meanwhile hear it, too; those that go don't.
void InputSystem::tellListeners(const KeyboardEvent& event) {
  for (std::size_t i = 0; i < mListeners.size(); ++i)
    if (InputListener* listener = mListeners[i])
      callGuarded([&] { listener->onKeyboardEvent(event); },
                  [] { return std::string("a listener of the input queue"); });
}

}
