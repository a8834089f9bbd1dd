#include "em5/freeplay/FreeplaySystem.h"

#include "em5/base/Jobs.h"
#include "em5/base/JsonMembers.h"
#include "em5/settings/GameDebugGroup.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/Random.h"
#include "qsf/log/LogSystem.h"

#include <algorithm>

namespace em5 {

namespace {

constexpr double LONGEST_TIME = 1'000'000; // seconds; a week and a half of play

/// `<project>/<type>/<category>/<name>` with that type, in a mounted project.
const qsf::BaseAsset* findAssetOfType(const std::string& localAssetName, const std::string& type) {
  const std::size_t slash = localAssetName.find('/');
  if (slash == std::string::npos || localAssetName.compare(slash + 1, type.size() + 1, type + "/") != 0) return nullptr;
  return qsf::AssetProxy(localAssetName).getAsset();
}

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
  std::string name;
  std::vector<std::string> events;
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
    pool->events = asTexts(root.member("events"));
    const NumberRange intervals{0.1, LONGEST_TIME};
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

FreeplayEvent* FreeplaySystem::triggerEventByPath(const FreeplayEventTriggerInfo&, const std::string& definition) {
  const qsf::BaseAsset* asset = mGameRunning ? findEventDefinition(definition) : nullptr;
  if (!asset) return nullptr;
  try {
    const qsf::Json json = qsf::readJsonFile(asset->getFile());
    const qsf::JsonPlace root(json, asset->getFile());
    root.expectObject({"name", "succeedsAfter", "failsAfter", "canWin", "canLose"});
    const NumberRange times{0, LONGEST_TIME};
    auto event = std::make_unique<FreeplayEvent>();
    event->mDefinition = asset->getName();
    event->mEventName = textOr(root, "name", asset->getName().substr(asset->getName().rfind('/') + 1));
    event->mSucceedsAfter = qsf::Time::fromSeconds(numberOr(root, "succeedsAfter", times, 0));
    event->mFailsAfter = qsf::Time::fromSeconds(numberOr(root, "failsAfter", times, 0));
    event->mCanWinEvent = boolOr(root, "canWin", true);
    event->mCanLoseEvent = boolOr(root, "canLose", true);
    return &mEventManager.startEvent(std::move(event));
  } catch (const std::exception& exception) {
    qsf::logMessage(qsf::LogSystem::ERROR, exception.what());
    return nullptr;
  }
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
  if (!triggerEventByPath(FreeplayEventTriggerInfo(0), pool.events[drawn]))
    qsf::logMessage(qsf::LogSystem::WARNING,
                    "Event pool " + pool.name + ": the event " + pool.events[drawn] + " cannot be started");
}

}
