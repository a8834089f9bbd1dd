#include "em5/freeplay/FreeplayEventManager.h"

#include "qsf/log/FaultCounter.h"

#include <algorithm>

namespace em5 {

namespace {

/// One event's fault costs that event that call, and nothing else.
template <class Call> void guarded(const FreeplayEvent& event, Call&& call) {
  qsf::callGuarded(call, [&] { return "the event " + event.getEventName(); });
}

}

FreeplayEventManager::FreeplayEventManager() = default;

FreeplayEventManager::~FreeplayEventManager() { shutdownAllEvents(); }

std::vector<FreeplayEvent*> FreeplayEventManager::getCurrentEvents() const {
  std::vector<FreeplayEvent*> events;
  for (const auto& event : mEvents)
    if (!event->isFinished()) events.push_back(event.get());
  return events;
}

FreeplayEvent* FreeplayEventManager::getLastEvent() const {
  const std::vector<FreeplayEvent*> events = getCurrentEvents();
  return events.empty() ? nullptr : events.back();
}

std::size_t FreeplayEventManager::getNumberOfActiveEvents() const {
  return static_cast<std::size_t>(
      std::count_if(mEvents.begin(), mEvents.end(), [](const auto& event) { return event->isRunning(); }));
}

FreeplayEvent* FreeplayEventManager::getEventById(std::uint64_t id) const {
  for (const auto& event : mEvents)
    if (event->getId() == id && !event->isFinished()) return event.get();
  return nullptr;
}

FreeplayEvent& FreeplayEventManager::startEvent(std::unique_ptr<FreeplayEvent> event) {
  event->mId = mNextId++;
  mEvents.push_back(std::move(event));
  FreeplayEvent& started = *mEvents.back();
  guarded(started, [&] { started.onStartup(); });
  guarded(started, [&] { started.setRunning(); });
  return started;
}

void FreeplayEventManager::update(qsf::Time timePassed) {
  // By index: an event may start another one, which waits for the next frame.
  const std::size_t count = mEvents.size();
  for (std::size_t i = 0; i < count; ++i) {
    FreeplayEvent& event = *mEvents[i];
    if (!event.isRunning()) continue;
    event.mRunningTime += timePassed;
    guarded(event, [&] { event.updateFreeplayEvent(timePassed); });
  }
  removeFinishedEvents();
}

void FreeplayEventManager::removeFinishedEvents() {
  std::vector<std::unique_ptr<FreeplayEvent>> finished;
  for (auto& event : mEvents)
    if (event->isFinished()) finished.push_back(std::move(event));
  mEvents.erase(std::remove(mEvents.begin(), mEvents.end(), nullptr), mEvents.end());
  for (const auto& event : finished)
    guarded(*event, [&] { event->onShutdown(); });
}

void FreeplayEventManager::shutdownAllEvents() {
  while (!mEvents.empty()) {
    const std::unique_ptr<FreeplayEvent> event = std::move(mEvents.back());
    mEvents.pop_back();
    guarded(*event, [&] { event->onShutdown(); });
  }
}

}
