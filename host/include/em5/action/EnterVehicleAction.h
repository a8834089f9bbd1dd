#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/Ids.h"

namespace em5 {

/// Gets a person into a vehicle: it walks there, unless it enters at once, and is linked to the vehicle and hidden.
/// Emits EM5_ACTION_ENTER_VEHICLE. Ends without that if the vehicle is gone or destroyed, if the owner is no person or
/// not well, or if it cannot get there.
class QSF_API EnterVehicleAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::EnterVehicleAction"};
  static void declareCamp();

  /// How the person gets to the vehicle; other numbers count as WALK.
  enum Approach { WALK = 0, RUN = 1, AT_ONCE = 2 };
  void init(const qsf::Entity& vehicle, int approach = WALK);
  qsf::action::Description describe() const override;

protected:
  bool onStartup() override;
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  void walkTo(qsf::Entity& vehicle);

  std::uint64_t mVehicleId = qsf::UNINITIALIZED_ID;
  int mApproach = WALK;
  bool mHasWalked = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::EnterVehicleAction)
