#pragma once
#include "em5/action/WorkAtTargetAction.h"

namespace em5 {

/// Lets a gangster go to a victim and do what its logic does, if it can still be done then.
class QSF_API DeedAction : public WorkAtTargetAction {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::DeedAction"};
  static void declareCamp();

protected:
  void finishOn(qsf::Entity& victim) override;
};

/// Lets a person run to the nearest border of the map, where it is destroyed.
class QSF_API EscapeAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::EscapeAction"};
  static void declareCamp();

protected:
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  bool mHasGone = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::DeedAction)
CAMP_TYPE_NONCOPYABLE(em5::EscapeAction)
