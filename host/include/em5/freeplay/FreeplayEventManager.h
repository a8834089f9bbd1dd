#pragma once
#include "em5/freeplay/FreeplayEvent.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace em5 {

/// How far an objective is, or was when its event ended.
struct ObjectiveRecord {
  std::string id;   ///< its type id: the text, or the number of one that nobody knows
  std::string text; ///< as the player reads it
  ObjectiveType type = OBJECTIVE_REQUIRED;
  int currentNumber = 0;
  int neededNumber = 0;
  bool reached = false;
};

/// What can be told of an event, also when it is gone.
struct EventRecord {
  std::uint64_t id = 0;
  std::string className;
  std::string name;
  std::string definition;
  FreeplayEvent::State state = FreeplayEvent::State::PREPARED;
  std::string reason; ///< why it has ended; empty while it runs
  qsf::Time runningTime;
  std::vector<ObjectiveRecord> objectives;
};

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
  /// Those that have succeeded or failed since the game's start, at most the last thousand, then those that run; each
  /// in the order in which they ended or started.
  std::vector<EventRecord> getRecords() const;

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
  std::deque<EventRecord> mEndedEvents;
  std::uint64_t mNextId = 1;
  std::size_t mNumberOfSucceeded = 0;
  std::size_t mNumberOfFailed = 0;
};

}
