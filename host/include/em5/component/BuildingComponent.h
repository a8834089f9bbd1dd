#pragma once
#include "qsf/base/Ids.h"
#include "qsf/base/Time.h"
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"
#include "qsf/message/MessageProxy.h"

#include <glm/glm.hpp>

#include <vector>

namespace em5 {

class FreeplayEvent;

/// A building. Knows the entities that belong to it, those that light it, and the persons that can't leave it: those
/// that are trapped inside, who are a number until they come out or die, and one that waves out of a window. Properties
/// "EntityIds", "Lights"; "TrappedPersons" (all of them; setting a lower number lets some out), "InjuredPersons" (those
/// of them that are injured), "PersonAtWindow" (an id, uninitialised for nobody). See docs/host-game.md for the rules.
class QSF_API BuildingComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::BuildingComponent"};
  /// More are never inside, of each kind.
  static constexpr int MOST_PERSONS = 1000;
  explicit BuildingComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const std::vector<std::uint64_t>& getEntityIds() const { return mEntityIds; }
  void setEntityIds(const std::vector<std::uint64_t>& ids) { mEntityIds = ids; }
  const std::vector<std::uint64_t>& getLights() const { return mLights; }

  /// Traps so many persons, in the place of those who were inside: a number of each kind is drawn between its minimum
  /// and maximum; a maximum below its minimum counts as it. `needed`: an event that they come to belong to has to get
  /// them out. `mortal`: who is inside when the time is over is dead; a time of zero or less never is.
  void setupTrappedInjuredPersons(std::uint16_t minimumHealthy, std::uint16_t maximumHealthy,
                                  std::uint16_t minimumInjured, std::uint16_t maximumInjured, bool needed, bool mortal,
                                  qsf::Time maximumTime);
  /// The same for healthy ones that are mortal.
  void setupTrappedPersons(std::uint16_t minimum, std::uint16_t maximum, bool needed, qsf::Time maximumTime);
  /// Makes those inside a part of the event, which may be null; with nobody inside one person is trapped before. A fire
  /// that is lit for an event does so, too.
  void createTrappedPerson(FreeplayEvent* event);
  /// Gets one person out, injured ones first: a new entity in front of the building, a part of their event. Null if
  /// there is none.
  qsf::Entity* freeTrappedPerson();
  int getTrappedPersons() const { return mHealthy + mInjured; }
  int getInjuredPersons() const { return mInjured; }
  /// Those who can walk leave by themselves.
  void onFireIsOut();

  /// With that probability (0 to 1) a person that is inside shows itself at a window and calls for the ladder vehicle,
  /// which is a matter of the event if there is one. Returns whether it does. Nobody else fits in while one waves.
  bool letPersonWaveOutOfWindow(qsf::Entity& person, FreeplayEvent* event, float probability);
  std::uint64_t getPersonAtWindow() const { return mPersonAtWindow; }

  /// The middle of its box, its place without one.
  glm::vec3 getExplosionCenterWorldSpacePosition() const;

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  void setTrappedPersonsByReflection(int number);
  void setInjuredPersonsByReflection(int number);
  void joinEvent(FreeplayEvent& event);
  void forgetTrappedPersons();
  void losePersons();
  qsf::Entity* takeOut(int& kind);
  qsf::Entity* spawnPersonInFront();
  void listenForRescue();
  void jump(qsf::Entity& person);
  void leaveWindow();
  void forgetWindow();
  void updateJob();
  void update(qsf::Time timePassed);
  /// At the front of its box, that much above its place and before it.
  glm::vec3 getPlaceAtFront(float height, float distance) const;

  std::vector<std::uint64_t> mEntityIds;
  std::vector<std::uint64_t> mLights;
  qsf::JobProxy mJob;

  int mHealthy = 0;
  int mInjured = 0;
  bool mNeeded = true;
  bool mMortal = false;
  qsf::Time mTimeLeft;
  std::uint64_t mEventId = 0; ///< of those inside; 0 for none

  std::uint64_t mPersonAtWindow = qsf::UNINITIALIZED_ID;
  std::uint64_t mWindowEventId = 0;
  qsf::Time mTimeToJump;
  qsf::MessageProxy mLadderMessageProxy;
  qsf::MessageProxy mJumpMessageProxy;
};

}
CAMP_TYPE_NONCOPYABLE(em5::BuildingComponent)
