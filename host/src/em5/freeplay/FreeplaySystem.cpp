#include "em5/freeplay/FreeplaySystem.h"

#include "em5/base/Jobs.h"
#include "em5/base/JsonMembers.h"
#include "em5/freeplay/EventDefinition.h"
#include "em5/settings/GameDebugGroup.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/Random.h"
#include "qsf/log/LogSystem.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>
#include <stdexcept>

namespace em5 {

namespace {

const qsf::BaseAsset* findEventDefinition(const std::string& definition) {
  if (const qsf::BaseAsset* asset = findAssetOfType(definition, "em5_event")) return asset;
  const auto& projects = qsf::Qsf::instance()->getProjectManager().getProjects();
  for (auto project = projects.rbegin(); project != projects.rend(); ++project)
    if (const auto* asset = findAssetOfType((*project)->getName() + "/em5_event/" + definition, "em5_event"))
      return asset;
  return nullptr;
}

}

/// Event definitions that are started in the course of a game, one at a time after a drawn time.
struct FreeplaySystem::EventPool {
  struct Entry {
    std::string definition;
    EventProperties properties;
  };

  std::string name;
  std::vector<Entry> events;
  float shortestInterval = 120; ///< seconds
  float longestInterval = 300;
  std::size_t maximumActive = 3; ///< with so many running events none is added
  qsf::Time untilNext;

  void drawInterval() {
    untilNext =
        qsf::Time::fromSeconds(static_cast<double>(qsf::Random::getRandomFloat(shortestInterval, longestInterval)));
  }
};

FreeplaySystem::FreeplaySystem() = default;

FreeplaySystem::~FreeplaySystem() = default;

bool FreeplaySystem::addEventPoolsByName(const std::string& localAssetName) {
  const auto known =
      std::find_if(mPools.begin(), mPools.end(), [&](const auto& pool) { return pool->name == localAssetName; });
  if (known != mPools.end()) return true;
  const qsf::BaseAsset* asset = findAssetOfType(localAssetName, "em5_eventpool");
  if (!asset) return false;
  try {
    const qsf::Json json = qsf::readJsonFile(asset->getFile());
    const qsf::JsonPlace root(json, asset->getFile());
    root.expectObject({"events", "shortestInterval", "longestInterval", "maximumActive"});
    auto pool = std::make_unique<EventPool>();
    pool->name = localAssetName;
    const qsf::JsonPlace events = root.member("events");
    events.expectArray();
    for (std::size_t i = 0; i < events.size(); ++i) {
      const qsf::JsonPlace entry = events.element(i);
      if (!entry.getValue().is_object()) {
        pool->events.push_back({entry.asText(), {}});
        continue;
      }
      entry.expectObject({"event", "properties"});
      pool->events.push_back({requiredText(entry, "event"), entry.has("properties")
                                                                ? asEventProperties(entry.member("properties"))
                                                                : EventProperties()});
    }
    const NumberRange intervals{0.1, LONGEST_EVENT_TIME};
    pool->shortestInterval = static_cast<float>(numberOr(root, "shortestInterval", intervals, 120));
    pool->longestInterval =
        static_cast<float>(numberOr(root, "longestInterval", intervals, std::max(300.0f, pool->shortestInterval)));
    if (pool->longestInterval < pool->shortestInterval)
      root.member("longestInterval").fail("it is shorter than shortestInterval");
    pool->maximumActive = static_cast<std::size_t>(numberOr(root, "maximumActive", {0, 1000}, 3));
    pool->drawInterval();
    mPools.push_back(std::move(pool));
    return true;
  } catch (const std::exception& exception) {
    qsf::logMessage(qsf::LogSystem::ERROR, exception.what());
    return false;
  }
}

std::vector<std::string> FreeplaySystem::getEventPoolNames() const {
  std::vector<std::string> names;
  for (const auto& pool : mPools)
    names.push_back(pool->name);
  return names;
}

FreeplayEvent* FreeplaySystem::triggerEventByPath(const FreeplayEventTriggerInfo& triggerInfo,
                                                  const std::string& definition) {
  if (!mGameRunning || !findEventDefinition(definition)) return nullptr;
  try {
    return trigger(triggerInfo, definition);
  } catch (const std::exception& exception) {
    qsf::logMessage(qsf::LogSystem::ERROR, exception.what());
    return nullptr;
  }
}

FreeplayEvent* FreeplaySystem::triggerPoolEvent(const std::string& definition, const EventProperties& properties) {
  FreeplayEvent* event = trigger(FreeplayEventTriggerInfo(0, properties), definition);
  if (event && !event->getHintParameters().supervisorMessage.empty())
    event->showEventStartHint(event->getHintParameters());
  return event;
}

FreeplayEvent* FreeplaySystem::trigger(const FreeplayEventTriggerInfo& triggerInfo, const std::string& definition) {
  std::unique_ptr<FreeplayEvent> event = getFactory(definition).tryTriggerEvent(triggerInfo);
  return event ? mEventManager.startEvent(std::move(event)) : nullptr;
}

FreeplayEventFactory& FreeplaySystem::getFactory(const std::string& definition) {
  const qsf::BaseAsset* asset = mGameRunning ? findEventDefinition(definition) : nullptr;
  if (!asset)
    throw std::runtime_error(mGameRunning ? "there is no event definition \"" + definition + "\"" : "no game runs");
  std::unique_ptr<FreeplayEventFactory>& factory = mFactories[asset->getName()];
  if (factory) return *factory;
  auto read = std::make_unique<EventDefinition>(readEventDefinition(*asset));
  auto made = qsf::ClassRegistry::createObject<FreeplayEventFactory>(read->factory);
  if (!made) throw std::runtime_error(asset->getFile() + ": \"factory\" names a class that makes no events");
  made->mDefinition = std::move(read);
  factory = std::move(made);
  return *factory;
}

const FreeplayEventFactory* FreeplaySystem::findFactory(const std::string& definition) const {
  const qsf::BaseAsset* asset = findEventDefinition(definition);
  const auto found = asset ? mFactories.find(asset->getName()) : mFactories.end();
  return found == mFactories.end() ? nullptr : found->second.get();
}

void FreeplaySystem::startGame() {
  mGameRunning = true;
  mUpdateJobProxy.registerAt(Jobs::SIMULATION_LOGIC, [this](const qsf::JobArguments& arguments) { update(arguments); });
}

void FreeplaySystem::stopGame() {
  mGameRunning = false;
  mUpdateJobProxy.unregister();
  mEventManager.shutdownAllEvents();
  mPools.clear();
  mFactories.clear();
}

void FreeplaySystem::update(const qsf::JobArguments& arguments) {
  mEventManager.update(arguments.getTimePassed());
  const qsf::UniqueInstance<GameDebugGroup> debugGroup;
  if (!debugGroup || debugGroup->getActiveFreeplay())
    for (const auto& pool : mPools)
      updatePool(*pool, arguments.getTimePassed());
}

void FreeplaySystem::updatePool(EventPool& pool, qsf::Time timePassed) {
  pool.untilNext -= timePassed;
  if (pool.untilNext > qsf::Time()) return;
  pool.drawInterval();
  if (pool.events.empty() || mEventManager.getNumberOfActiveEvents() >= pool.maximumActive) return;
  const auto drawn = qsf::Random::getRandomUint(0, static_cast<std::uint32_t>(pool.events.size() - 1));
  const std::string& definition = pool.events[drawn].definition;
  const auto warn = [&](const std::string& reason) {
    qsf::logMessage(qsf::LogSystem::WARNING,
                    "Event pool " + pool.name + ": the event " + definition + " cannot be started: " + reason);
  };
  try {
    if (triggerPoolEvent(definition, pool.events[drawn].properties)) return;
    const FreeplayEventFactory* factory = findFactory(definition);
    warn(factory ? factory->getTriggerFailReason() : "it is refused");
  } catch (const std::exception& exception) {
    warn(exception.what());
  }
}

}
