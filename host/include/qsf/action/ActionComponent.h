#pragma once
#include "qsf/action/ActionPlan.h"
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

namespace qsf {

/// Lets an entity act: owns its action plan and drives the current action once a simulated frame. An action that is
/// done, that doesn't start or that throws is dropped; the next one starts in the next frame.
class QSF_API ActionComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::ActionComponent"};
  static constexpr unsigned int DEFAULT_PRIORITY = 100;
  explicit ActionComponent(Prototype* prototype);
  ~ActionComponent() override;
  static void declareCamp();

  const ActionPlan& getPlan() const { return mPlan; }
  /// Null for an empty plan.
  Action* getCurrentAction() const { return mPlan.isEmpty() ? nullptr : mPlan.getActions().front(); }
  /// 0 for an empty plan.
  unsigned int getCurrentPriority() const;

  /// Null if no action class has that id. The action belongs to no plan yet.
  std::unique_ptr<Action> createActionById(StringHash actionId) const;
  Action& insertAction(std::unique_ptr<Action> action, unsigned int priority, action::InsertionMode mode);
  /// Makes and inserts an action. If no action class has that id, this is logged at severity 4 and a std::runtime_error
  /// leaves; the plan then stays as it was.
  Action& pushActionById(StringHash actionId, unsigned int priority = DEFAULT_PRIORITY,
                         action::InsertionMode mode = action::APPEND_TO_BACK);
  /// The same for a class at hand, to be initialised by the caller.
  template <class T>
  T& pushAction(unsigned int priority = DEFAULT_PRIORITY, action::InsertionMode mode = action::APPEND_TO_BACK) {
    return static_cast<T&>(pushActionById(T::ACTION_ID, priority, mode));
  }
  /// An action that isn't in the plan does nothing. Its memory lives until the frame's end.
  void removeAction(const Action* action);
  void clearPlan();

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  void update(const JobArguments& arguments);
  bool startAction(Action& action);
  void stopAction(Action& action);
  void updateRegistration();
  std::string describeActions() const;

  ActionPlan mPlan;
  JobProxy mJob;
  std::uint32_t mUpdates = 0;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::ActionComponent)
