#pragma once
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"
#include "qsf/message/MessageProxy.h"

#include <cstdint>
#include <set>
#include <vector>

namespace em5 {
class FreeplayEvent;
}

namespace script {

/// Fills a house with smoke: while it is on, persons in its boxes lose health and are poisoned in the end. It lives
/// from the game's start to its end; on a component that comes later nothing happens until the next start. Properties
/// "Linked Particles", "Burnable Objects", "Burnable Objects in House" and "BulletBox Area" (entities), which the
/// game's start completes, "StartSimulationAtGameStart" (it lights the objects then), and "Burning Object Required":
/// the smoke is on while one of the objects burns, otherwise always. That the component isn't active changes nothing.
class SmokeComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"script::SmokeComponent"};
  explicit SmokeComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  using EntityIds = std::vector<std::uint64_t>;

  void onGameStarted();
  void startJob();
  void endJob();
  void prepareBoxes();
  void prepareBurnables();
  void update();
  bool isAnythingBurning();
  void turnOn();
  void turnOff();
  void lightObjectsInHouse() const;
  void setParticlesActive(bool active) const;
  void keepParticlesActive() const;
  void updatePeople();
  void breathe(qsf::Entity& person) const;
  em5::FreeplayEvent* findEvent() const;

  EntityIds mLinkedParticles;
  EntityIds mBurnableObjects;
  EntityIds mBurnableObjectsInHouse;
  EntityIds mBoxes;
  bool mStartAtGameStart = false;
  bool mBurningObjectRequired = false;

  bool mHasJob = false; ///< also while its layer rests
  bool mOn = false;
  std::uint64_t mEventId = 0; ///< of an object that burned; 0 for none
  /// In the smoke at the last update, without those who don't mind it.
  std::set<std::uint64_t> mPeople;
  qsf::MessageProxy mGameStartProxy;
  qsf::MessageProxy mGameEndProxy;
  qsf::JobProxy mJob;
};

}
CAMP_TYPE_NONCOPYABLE(script::SmokeComponent)
