#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/Ids.h"

namespace em5 {

/// Lets a person work on something with what it holds: it walks there and works for a time; then a fire is out, a tree
/// is down, a closed door opens. Ends without that if the target is gone or can't be reached.
class QSF_API WorkWithEquipmentAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::WorkWithEquipmentAction"};
  static void declareCamp();

  void init(const qsf::Entity& target, qsf::Time workingTime);
  qsf::action::Description describe() const override;

protected:
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  void walkTo(qsf::Entity& target);
  static void finishOn(qsf::Entity& target);

  std::uint64_t mTargetId = qsf::UNINITIALIZED_ID;
  qsf::Time mTimeLeft;
  bool mHasWalked = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::WorkWithEquipmentAction)
