#pragma once
#include "em5/freeplay/FreeplayEvent.h"

#include <memory>
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

  /// Takes the event over, gives it its id, starts it up and runs it.
  FreeplayEvent& startEvent(std::unique_ptr<FreeplayEvent> event);
  /// One frame of simulation: updates running events, then takes ended ones off.
  void update(qsf::Time timePassed);
  /// Shuts every event down, newest first.
  void shutdownAllEvents();

private:
  void removeFinishedEvents();

  std::vector<std::unique_ptr<FreeplayEvent>> mEvents;
  std::uint64_t mNextId = 1;
};

}
