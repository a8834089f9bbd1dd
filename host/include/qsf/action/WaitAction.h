#pragma once
#include "qsf/action/Action.h"

namespace qsf {

/// Does nothing for a span of simulated time; after an interruption for the whole span again.
class QSF_API WaitAction : public Action {
  CAMP_RTTI()
public:
  static constexpr StringHash ACTION_ID{"qsf::WaitAction"};
  static void declareCamp();
  void init(Time span) { mSpan = span; }
  action::Description describe() const override;

protected:
  bool onStartup() override;
  action::Result updateAction(const Clock& clock) override;

private:
  Time mSpan, mTimeLeft;
};

/// Stands in a plan under any name and never ends by itself; tools and tests put it there.
class QSF_API IdleAction : public Action {
  CAMP_RTTI()
public:
  static constexpr StringHash ACTION_ID{"qsf::IdleAction"};
  static void declareCamp();
  void init(const std::string& typeName) { mTypeName = typeName; }
  std::string getTypeName() const override { return mTypeName; }
  StringHash getTypeId() const override { return StringHash(mTypeName); }

protected:
  action::Result updateAction(const Clock& /*clock*/) override { return action::RESULT_CONTINUE; }

private:
  std::string mTypeName = "qsf::IdleAction";
};

}
CAMP_TYPE_NONCOPYABLE(qsf::WaitAction)
CAMP_TYPE_NONCOPYABLE(qsf::IdleAction)
