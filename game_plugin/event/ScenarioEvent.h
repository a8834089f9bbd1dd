#pragma once
#include "em5/freeplay/FreeplayEvent.h"
#include "qsf/job/JobProxy.h"
#include "qsf/message/MessageProxy.h"

#include <cstdint>
#include <string>
#include <vector>

namespace script {

/// The mission that a script owns: it gives it a number, objectives, and leave to end. Four mechanics come with it,
/// which count for objectives by fixed text ids: persons that the ladder vehicle fetches or that jump ("rescue_dlk",
/// "rescue_dlk_and_injure"), boxes that are repaired ("build_ebox"), diving spots that are searched ("diving_spot").
/// They look at entities of this event only. Property "Eventtype", which pools set to tell their events apart.
///
/// None of what scripts write here survives a saved game; what the host keeps does.
class ScenarioEvent : public em5::FreeplayEvent {
  CAMP_RTTI()
public:
  static constexpr const char* CLASS_NAME = "script::ScenarioEvent";
  static constexpr std::int32_t UNCLAIMED = -1;

  ScenarioEvent() = default;
  static void declareCamp();

  /// While false, no objective ends the event: scripts start it first and tell what it is about afterwards.
  bool allowedToFinish = false;
  /// The script's name for the event, UNCLAIMED until a script gives it one.
  std::int32_t uniqueId = UNCLAIMED;
  const std::string& getEventType() const { return mEventType; }

  // Objectives, by their text ids. An id that isn't there does nothing, unless told otherwise.

  /// One of that id that is there takes text and number, and keeps its kind. Kinds: "OPTIONAL", "FAIL", and any other
  /// text for one that is required.
  void createObjective(const std::string& text, const std::string& id, int neededNumber, const std::string& kind);
  /// A new one is required.
  em5::Objective& getOrCreateObjective(const std::string& id);
  void setObjectiveCurrentNumber(const std::string& id, int number);
  void setObjectiveNeededNumber(const std::string& id, int number);
  /// By one; the entity, which may be null, leaves the objective's list.
  void increaseObjective(const std::string& id, const qsf::Entity* entity);
  void increaseNeededNumber(const std::string& id);
  void decreaseNeededNumber(const std::string& id);
  enum class LastOne { STAYS, IS_REMOVED };
  /// Takes back one of what is needed, and done, from every objective with that text.
  void reduceObjectiveByText(const std::string& text, LastOne last);
  enum class Removal { AT_LIMIT, ALWAYS };
  /// Takes back one of what is needed from every objective with that text; one that needs `limit` or more goes.
  void dropObjectiveByText(const std::string& text, int limit, Removal removal);

  /// That person breaks a leg in so many seconds, unless it is fetched before.
  void addPendingJump(float seconds, std::uint64_t personId);
  std::size_t getNumberOfPendingJumps() const { return mPendingJumps.size(); }

  qsf::Entity* getFocusEntity() override { return getRandomVisibleEventEntity(); }
  void showEventStartHint(const em5::EventHintParameters& hintParameters) override;
  void serialize(em5::EventArchive& archive) override;

protected:
  bool onStartup() override { return true; }
  bool onRun() override;
  void onShutdown() override;
  void updateFreeplayEvent(qsf::Time timePassed) override;

private:
  struct PendingJump {
    float secondsLeft;
    std::uint64_t personId;
    friend bool operator==(const PendingJump&, const PendingJump&) = default;
  };

  em5::Objective* findObjective(const std::string& id) const;
  /// Calls back for each objective with that text, which it may remove.
  template <class Visit> void eachObjectiveWithText(const std::string& text, Visit&& visit);

  // The mechanics: ScenarioEventMechanics.cpp.
  void listen();
  /// Null for an entity that is gone or isn't in this event.
  qsf::Entity* findOwnEntity(std::uint64_t entityId) const;
  void onPersonLoadedOnLadder(const qsf::MessageParameters& message);
  void onPersonJumped(const qsf::MessageParameters& message);
  void onRepaired(const qsf::MessageParameters& message);
  void onFoundByDiver(const qsf::MessageParameters& message);
  void countDownJumps(qsf::Time timePassed);

  std::string mEventType;
  qsf::MessageProxy mLadderMessageProxy;
  qsf::MessageProxy mJumpMessageProxy;
  std::vector<PendingJump> mPendingJumps;
  qsf::JobProxy mJumpJobProxy;
  qsf::MessageProxy mRepairMessageProxy;
  qsf::MessageProxy mDivingMessageProxy;
};

/// The ScenarioEvents that run, oldest first.
std::vector<ScenarioEvent*> getCurrentScenarioEvents();

/// The event as a ScenarioEvent; null for one of another class and for null.
ScenarioEvent* asScenarioEvent(em5::FreeplayEvent* event);

}
CAMP_TYPE_NONCOPYABLE(script::ScenarioEvent)
