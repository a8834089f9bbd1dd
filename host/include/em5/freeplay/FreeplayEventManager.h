#pragma once
#include "em5/freeplay/FreeplayEvent.h"

#include <memory>
#include <string>
#include <vector>

namespace em5 {

/// The events of the running game. Owned by the freeplay system; empty between games.
class QSF_API FreeplayEventManager {
public:
  FreeplayEventManager();
  ~FreeplayEventManager();
  FreeplayEventManager(const FreeplayEventManager&) = delete;
  FreeplayEventManager& operator=(const FreeplayEventManager&) = delete;

  /// Events that are prepared or running, in the order of their start.
  std::vector<FreeplayEvent*> getCurrentEvents() const;
  /// The newest of the current events; null without one.
  FreeplayEvent* getLastEvent() const;
  /// Number of running events.
  std::size_t getNumberOfActiveEvents() const;
  /// Null if there is none, also for one that has ended.
  FreeplayEvent* getEventById(std::uint64_t id) const;
  /// Events that ended so since the game's start.
  std::size_t getNumberOfSucceededEvents() const { return mNumberOfSucceeded; }
  std::size_t getNumberOfFailedEvents() const { return mNumberOfFailed; }

  /// Takes the event over, gives it its id, starts it up and runs it. Null if its startup says no; it is gone then.
  FreeplayEvent* startEvent(std::unique_ptr<FreeplayEvent> event);
  /// One frame of simulation: counts for fail conditions, updates running events, then takes ended ones off.
  void update(qsf::Time timePassed);
  /// Shuts every event down, newest first, and forgets how many have ended.
  void shutdownAllEvents();

  /// The current events as a text, for a saved game.
  std::string saveEvents() const;
  /// Shuts the current events down and makes those of the text anew, with their ids; they start up and run again. One
  /// whose class is gone is logged and left out. Throws std::runtime_error for a text that saveEvents didn't write.
  void loadEvents(const std::string& saved);

private:
  FreeplayEvent* start(std::unique_ptr<FreeplayEvent> event);
  void endAllEvents();
  void removeFinishedEvents();

  std::vector<std::unique_ptr<FreeplayEvent>> mEvents;
  std::uint64_t mNextId = 1;
  std::size_t mNumberOfSucceeded = 0;
  std::size_t mNumberOfFailed = 0;
};

}
