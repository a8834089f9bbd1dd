#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/Ids.h"
#include "qsf/base/Time.h"

namespace em5 {

/// A person goes to another one, turns to it and speaks for two seconds; then it emits EM5_ACTION_SPEAK_TO_PERSON. Ends
/// without that if the other one is gone or can't be reached.
class QSF_API SpeakToPersonAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::SpeakToPersonAction"};
  static void declareCamp();

  void init(const qsf::Entity& person);
  qsf::action::Description describe() const override;

protected:
  bool onStartup() override;
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  std::uint64_t mPersonId = qsf::UNINITIALIZED_ID;
  qsf::Time mTimeLeft;
  bool mHasWalked = false;
  bool mHasTurned = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::SpeakToPersonAction)
