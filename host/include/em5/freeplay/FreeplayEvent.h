#pragma once
#include "qsf/base/Time.h"
#include "qsf/reflection/Object.h"

#include <cstdint>
#include <string>

namespace em5 {

/// A mission. Owned by the event manager, which updates it while it runs. The basic event ends by itself when its
/// definition says so; derived classes end by their own rules.
class QSF_API FreeplayEvent : public qsf::Object {
  CAMP_RTTI()
public:
  enum class State { PREPARED, RUNNING, SUCCEEDED, FAILED };

  FreeplayEvent() = default;
  FreeplayEvent(const FreeplayEvent&) = delete;
  FreeplayEvent& operator=(const FreeplayEvent&) = delete;
  static void declareCamp();

  /// Unique among the events of the host's life, from 1.
  std::uint64_t getId() const { return mId; }
  const std::string& getEventName() const { return mEventName; }
  void setEventName(const std::string& name) { mEventName = name; }
  /// Local asset name of the definition it came from; empty for an event without one.
  const std::string& getDefinition() const { return mDefinition; }

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
  bool finish(State result);

protected:
  friend class FreeplayEventManager;
  virtual void onStartup() {}
  virtual void onRun() {}
  virtual void onShutdown() {}
  virtual void onSuccess() {}
  virtual void onFailure() {}
  /// Called once a frame while it runs. The basic event ends when the time of its definition has passed.
  virtual void updateFreeplayEvent(qsf::Time timePassed);

private:
  friend class FreeplaySystem;
  std::uint64_t mId = 0;
  std::string mEventName;
  std::string mDefinition;
  qsf::Time mRunningTime;
  qsf::Time mSucceedsAfter; ///< zero: never by itself
  qsf::Time mFailsAfter;    ///< zero: never by itself
  State mState = State::PREPARED;
  bool mCanLoseEvent = true;
  bool mCanWinEvent = true;
};

}
CAMP_TYPE_NONCOPYABLE(em5::FreeplayEvent)
