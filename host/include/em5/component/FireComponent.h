#pragma once
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

#include <cstdint>

namespace em5 {

class FreeplayEvent;

/// Lets its entity burn. A fire burns until it is put out; it hurts persons near it and damages the vehicle that it is
/// on. Fires do not spread by themselves. Properties "Burning", "Burnable". See docs/host-game.md for the rates.
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
  /// put into it (reason 1), and it has to be put out for the event to succeed.
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
  void burn(const qsf::JobArguments& arguments);

  qsf::JobProxy mFireJobProxy;
  std::uint64_t mEventId = 0; ///< of the fire; 0 for none
  bool mBurning = false;
  bool mBurnable = true;
};

}
CAMP_TYPE_NONCOPYABLE(em5::FireComponent)
