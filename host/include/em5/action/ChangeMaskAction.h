#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/Time.h"

#include <optional>

namespace em5 {

/// Lets a person put on its breathing mask and suit, or take them off, which takes two seconds.
class QSF_API ChangeMaskAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::ChangeMaskAction"};
  static void declareCamp();

  /// Without a call of init: the other way round than it is. A person that is so already ends at once.
  void init(bool masked) { mWanted = masked; }
  qsf::action::Description describe() const override;

protected:
  bool onStartup() override;
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  std::optional<bool> mWanted;
  qsf::Time mTimeLeft;
};

}
CAMP_TYPE_NONCOPYABLE(em5::ChangeMaskAction)
