#include "em5/freeplay/FreeplayEventManager.h"

#include "em5/freeplay/EventArchive.h"
#include "em5/freeplay/ObjectiveHelper.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

#include <algorithm>
#include <stdexcept>

namespace em5 {

namespace {

/// One event's fault costs that event that call, and nothing else.
template <class Call> void guarded(const FreeplayEvent& event, Call&& call) {
  qsf::callGuarded(call, [&] { return "the event " + event.getEventName(); });
}

constexpr std::size_t MOST_ENDED_EVENTS = 1000;

EventRecord recordOf(const FreeplayEvent& event) {
  EventRecord record{event.getId(),    event.getCampClassName(), event.getEventName(),   event.getDefinition(),
                     event.getState(), event.getEndReason(),     event.getRunningTime(), {}};
  for (const auto& objective : event.getObjectives().getObjectives())
    record.objectives.push_back({qsf::toText(objective->getTypeId()), objective->getShownText(), objective->getType(),
                                 objective->getCurrentNumber(), objective->getNeededNumber(), objective->isReached()});
  return record;
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

FreeplayEvent* FreeplayEventManager::startEvent(std::unique_ptr<FreeplayEvent> event) {
  event->mId = mNextId++;
  return start(std::move(event));
}

FreeplayEvent* FreeplayEventManager::start(std::unique_ptr<FreeplayEvent> event) {
  FreeplayEvent& started = *event;
  mEvents.push_back(std::move(event));
  bool wanted = false;
  guarded(started, [&] { wanted = started.onStartup(); });
  if (wanted) {
    guarded(started, [&] { started.onRun(); });
    return &started;
  }
  std::erase_if(mEvents, [&](const auto& candidate) { return candidate.get() == &started; });
  return nullptr;
}

void FreeplayEventManager::update(qsf::Time timePassed) {
  // By index: an event may start another one, which waits for the next frame.
  const std::size_t count = mEvents.size();
  for (std::size_t i = 0; i < count; ++i) {
    FreeplayEvent& event = *mEvents[i];
    if (!event.isRunning()) continue;
    event.mRunningTime += timePassed;
    ObjectiveHelper(event).updateFailConditions();
    guarded(event, [&] { event.updateFreeplayEvent(timePassed); });
  }
  removeFinishedEvents();
}

void FreeplayEventManager::removeFinishedEvents() {
  std::vector<std::unique_ptr<FreeplayEvent>> finished;
  for (auto& event : mEvents)
    if (event->isFinished()) finished.push_back(std::move(event));
  mEvents.erase(std::remove(mEvents.begin(), mEvents.end(), nullptr), mEvents.end());
  for (const auto& event : finished) {
    guarded(*event, [&] { mEndedEvents.push_back(recordOf(*event)); });
    if (mEndedEvents.size() > MOST_ENDED_EVENTS) mEndedEvents.pop_front();
    ++(event->getState() == FreeplayEvent::State::SUCCEEDED ? mNumberOfSucceeded : mNumberOfFailed);
    guarded(*event, [&] { event->onShutdown(); });
  }
}

std::vector<EventRecord> FreeplayEventManager::getRecords() const {
  std::vector<EventRecord> records(mEndedEvents.begin(), mEndedEvents.end());
  for (const FreeplayEvent* event : getCurrentEvents())
    records.push_back(recordOf(*event));
  return records;
}

void FreeplayEventManager::endAllEvents() {
  while (!mEvents.empty()) {
    const std::unique_ptr<FreeplayEvent> event = std::move(mEvents.back());
    mEvents.pop_back();
    guarded(*event, [&] { event->onShutdown(); });
  }
}

void FreeplayEventManager::shutdownAllEvents() {
  endAllEvents();
  mNumberOfSucceeded = 0;
  mNumberOfFailed = 0;
  mEndedEvents.clear();
}

std::string FreeplayEventManager::saveEvents() const {
  qsf::Json saved = qsf::Json::object();
  saved["events"] = qsf::Json::array();
  for (FreeplayEvent* event : getCurrentEvents()) {
    qsf::Json& object = saved["events"].emplace_back(qsf::Json::object());
    object["class"] = event->getCampClassName();
    EventArchive archive(object, EventArchive::Direction::WRITING);
    event->serialize(archive);
  }
  return saved.dump();
}

void FreeplayEventManager::loadEvents(const std::string& saved) {
  std::vector<std::unique_ptr<FreeplayEvent>> loaded;
  try {
    qsf::Json document = qsf::Json::parse(saved);
    for (qsf::Json& object : document.at("events")) {
      const auto className = object.at("class").get<std::string>();
      auto event = qsf::ClassRegistry::createObject<FreeplayEvent>(qsf::StringHash(className));
      if (!event) {
        qsf::logMessage(qsf::LogSystem::ERROR, "A saved event is left out: there is no class " + className);
        continue;
      }
      EventArchive archive(object, EventArchive::Direction::READING);
      event->serialize(archive);
      loaded.push_back(std::move(event));
    }
  } catch (const qsf::Json::exception& fault) {
    throw std::runtime_error(std::string("this is no text of saved events: ") + fault.what());
  }
  endAllEvents();
  for (auto& event : loaded) {
    mNextId = std::max(mNextId, event->getId() + 1);
    start(std::move(event));
  }
}

}
