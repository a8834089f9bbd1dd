#pragma once
#include "qsf/component/Component.h"

#include <cstdint>

namespace em5 {

class FreeplayEvent;

/// What all vehicles have. Damage runs from 0 (intact) to 1, at which the vehicle is destroyed; a fire on it adds to
/// it. Properties "CanBeTowed", "CanBeCut" (somebody is stuck inside; clearing it lets the injured out),
/// "SirenEnabled", "Damage".
class QSF_API VehicleComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::VehicleComponent"};
  explicit VehicleComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  bool getCanBeTowed() const { return mCanBeTowed; }
  void setCanBeTowed(bool canBeTowed) { mCanBeTowed = canBeTowed; }
  bool getCanBeCut() const { return mCanBeCut; }
  /// An event that says that somebody is stuck inside has to have it cut open. What was to be cut and no longer is has
  /// been: the injured persons inside lie beside the vehicle.
  void setCanBeCut(bool canBeCut, FreeplayEvent* event = nullptr);
  bool isSirenEnabled() const { return mSirenEnabled; }
  void setSirenEnabled(bool enabled) { mSirenEnabled = enabled; }

  float getDamage() const { return mDamage; }
  /// Clamped to 0 to 1; a value that isn't a number changes nothing.
  void setDamage(float damage);
  /// Adds damage. A destroyed vehicle stands still and its siren is off. With an event, the vehicle is put into it
  /// (reason 1).
  void applyDamage(float damage, FreeplayEvent* event = nullptr);
  bool isDestroyed() const { return mDamage >= 1.0f; }

protected:
  void onShutdown() override;

private:
  void setCanBeCutByReflection(bool canBeCut) { setCanBeCut(canBeCut); }
  void letInjuredOut();

  std::uint64_t mCutEventId = 0; ///< that waits for the cut; 0 for none
  float mDamage = 0.0f;
  bool mCanBeTowed = false;
  bool mCanBeCut = false;
  bool mSirenEnabled = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::VehicleComponent)
