#pragma once
#include "qsf/base/Time.h"
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

#include <cstdint>

namespace em5 {

class FreeplayEvent;

/// Lets its entity burn. A fire hurts persons near it and damages what it is on; it spreads to what can burn beside it,
/// until it is put out or nothing is left to burn. Properties "Burning", "Burnable". See docs/host-game.md for the
/// rates.
class QSF_API FireComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::FireComponent"};
  explicit FireComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  bool isBurning() const { return mBurning; }
  /// True starts the fire if the entity can burn, false puts it out.
  void setBurning(bool burning);
  /// Returns whether it burns now. With an event, a fire that belongs to none yet is one of that event: its entity is
  /// put into it (reason 1), and it has to be put out for the event to succeed. So are the persons trapped in it.
  bool startFire(FreeplayEvent* event = nullptr);
  void stopFire() { setBurning(false); }

  /// Whether it can burn, which it can while it burns, too.
  bool isBurnable() const { return mBurnable; }
  /// What cannot burn stops burning.
  void setBurnable(bool burnable);

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  void updateJob();
  void joinEvent(FreeplayEvent& event);
  void leaveEvent();
  void breakOut();
  void goOut();
  void burn(const qsf::JobArguments& arguments);
  void heat(qsf::Time timePassed) const;
  void spread() const;
  void burnOut();

  qsf::JobProxy mFireJobProxy;
  qsf::Time mTimeToSpread;
  qsf::Time mTimeToBurn;
  std::uint64_t mEventId = 0; ///< of the fire; 0 for none
  bool mBurning = false;
  bool mBurnable = true;
};

}
CAMP_TYPE_NONCOPYABLE(em5::FireComponent)
