#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/Ids.h"

namespace em5 {

/// Lets a unit go to something and work there for a time; derived classes say what has then come of it. Ends without
/// that if the target is gone or can't be reached.
class QSF_API WorkAtTargetAction : public qsf::Action {
  CAMP_RTTI()
public:
  static void declareCamp();

  void init(const qsf::Entity& target, qsf::Time workingTime);
  qsf::action::Description describe() const override;

protected:
  qsf::action::Result updateAction(const qsf::Clock& clock) override;
  /// The work is done.
  virtual void finishOn(qsf::Entity& target) = 0;
  /// What the unit has to stand beside for it, and the provider that tells where.
  virtual qsf::Entity& getPlaceOf(qsf::Entity& target) const { return target; }
  virtual qsf::StringHash getTargetPointId() const;

private:
  void goTo(qsf::Entity& place);

  std::uint64_t mTargetId = qsf::UNINITIALIZED_ID;
  qsf::Time mTimeLeft;
  bool mHasGone = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::WorkAtTargetAction)
