#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/Time.h"

namespace em5 {

/// Stops a unit at once and holds it for a second; a road vehicle shows its brake lights meanwhile.
class QSF_API FullBrakeAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::FullBrakeAction"};
  static void declareCamp();

protected:
  bool onStartup() override;
  qsf::action::Result updateAction(const qsf::Clock& clock) override;
  void onShutdown() override;

private:
  qsf::Time mTimeLeft;
};

}
CAMP_TYPE_NONCOPYABLE(em5::FullBrakeAction)
