#pragma once
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

namespace em5 {

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
  /// Returns whether it burns now.
  bool startFire();
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
  void burn(const qsf::JobArguments& arguments);

  qsf::JobProxy mFireJobProxy;
  bool mBurning = false;
  bool mBurnable = true;
};

}
CAMP_TYPE_NONCOPYABLE(em5::FireComponent)
