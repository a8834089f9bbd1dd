#pragma once
#include "em5/freeplay/ObjectiveList.h"
#include "qsf/base/Time.h"
#include "qsf/reflection/Object.h"

#include <cstdint>
#include <string>
#include <vector>

namespace em5 {

class EventArchive;

/// What the player is told of an event.
struct EventHintParameters {
  std::string supervisorMessage; ///< text id or text of the supervisor at the start; empty for none
};

/// A mission. Owned by the event manager, which updates it while it runs. The basic event ends by itself when its
/// definition says so; derived classes end by their own rules. Those that are saved have a constructor without
/// arguments that CAMP knows.
class QSF_API FreeplayEvent : public qsf::Object {
  CAMP_RTTI()
public:
  enum class State { PREPARED, RUNNING, SUCCEEDED, FAILED };

  FreeplayEvent() = default;
  FreeplayEvent(const FreeplayEvent&) = delete;
  FreeplayEvent& operator=(const FreeplayEvent&) = delete;
  static void declareCamp();

  /// Unique among the events of the host's life, from 1; a loaded event has the one that it was saved with.
  std::uint64_t getId() const { return mId; }
  /// Name of the dynamic class.
  std::string getCampClassName() const { return getCampClass().name(); }
  const std::string& getEventName() const { return mEventName; }
  void setEventName(const std::string& name) { mEventName = name; }
  /// Local asset name of the definition it came from; empty for an event without one.
  const std::string& getDefinition() const { return mDefinition; }
  const EventHintParameters& getHintParameters() const { return mHintParameters; }

  bool getCanLoseEvent() const { return mCanLoseEvent; }
  void setCanLoseEvent(bool canLose) { mCanLoseEvent = canLose; }
  bool getCanWinEvent() const { return mCanWinEvent; }
  void setCanWinEvent(bool canWin) { mCanWinEvent = canWin; }

  State getState() const { return mState; }
  bool isRunning() const { return mState == State::RUNNING; }
  bool isFinished() const { return mState == State::SUCCEEDED || mState == State::FAILED; }
  /// Time since it began to run.
  qsf::Time getRunningTime() const { return mRunningTime; }

  /// Starts a prepared event. Any other state: nothing happens.
  void setRunning();
  /// Ends a running event, if it may be won or lost. The manager takes it off after the frame's update. Returns whether
  /// it ended.
  /// `reason` says why, in words for whoever reads of it.
  bool finish(State result, const std::string& reason = {});
  const std::string& getEndReason() const { return mEndReason; }

  ObjectiveList& getObjectives() { return mObjectives; }
  const ObjectiveList& getObjectives() const { return mObjectives; }
  /// Ends the event by its objectives: it fails if one of the kind FAIL is reached, else it succeeds if all required
  /// ones are, and without required ones, too.
  void checkObjectivesState();

  /// Puts the entity into the event (see EventIdComponent). One that is in it already takes the new reason only with
  /// `evenIfInEvent`.
  void addEntityToEvent(qsf::Entity& entity, int reason, bool evenIfInEvent = false);
  /// Entities of the main map that are in the event, by ascending id.
  std::vector<qsf::Entity*> getEntities() const;
  /// One of those that can be seen, drawn from the game's random source. Null if there is none.
  qsf::Entity* getRandomVisibleEventEntity() const;
  /// What the camera shows when the player asks for the event; null for nothing.
  virtual qsf::Entity* getFocusEntity() { return getRandomVisibleEventEntity(); }

  /// Tells the player that the event begins. Called for events that pools start and whose definition has a text.
  virtual void showEventStartHint(const EventHintParameters& hintParameters);

  /// Writes what is to survive a saved game, or reads it back.
  virtual void serialize(EventArchive& archive);

protected:
  friend class FreeplayEventManager;
  /// False: the event is dropped before it runs.
  virtual bool onStartup() { return true; }
  /// Called behind onStartup, also for a loaded event. Whoever overrides it calls setRunning.
  virtual bool onRun();
  virtual void onShutdown() {}
  virtual void onSuccess() {}
  virtual void onFailure() {}
  /// Called once a frame while it runs. The basic event ends when the time of its definition has passed.
  virtual void updateFreeplayEvent(qsf::Time timePassed);

private:
  friend class FreeplayEventFactory;
  friend class ObjectiveHelper;
  std::uint64_t mId = 0;
  std::string mEventName;
  std::string mDefinition;
  std::string mEndReason;
  EventHintParameters mHintParameters;
  ObjectiveList mObjectives;
  std::vector<std::uint64_t> mDeadIds; ///< persons that the fail condition has counted
  qsf::Time mRunningTime;
  qsf::Time mSucceedsAfter; ///< zero: never by itself
  qsf::Time mFailsAfter;    ///< zero: never by itself
  State mState = State::PREPARED;
  bool mCanLoseEvent = true;
  bool mCanWinEvent = true;
  bool mCountsBurningObjects = false;
  bool mCountsDeadPersons = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::FreeplayEvent)
