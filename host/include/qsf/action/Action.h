#pragma once
#include "qsf/base/Clock.h"
#include "qsf/base/StringHash.h"
#include "qsf/reflection/Object.h"

#include <string>

namespace qsf {

class ActionComponent;
class Entity;
class Map;

namespace action {

/// What an update says: go on, or drop the action.
enum Result { RESULT_CONTINUE, RESULT_DONE };

/// Where a new action goes in a plan; see ActionPlan.
enum InsertionMode { APPEND_TO_BACK = 0, INSERT_AT_FRONT = 1, INSERT_BEFORE_CURRENT = 2, REPLACE_WHOLE_PLAN = 3 };

}

/// Something that an entity does over time. Owned by the action component in whose plan it stands, which starts it when
/// it becomes the current one, updates it each simulated frame and destroys it when it is done. An action that another
/// one overtakes is shut down and started anew when its turn comes again. Classes that can be made by name are declared
/// with a constructor without arguments.
class QSF_API Action : public Object {
  CAMP_RTTI()
public:
  Action() = default;
  ~Action() override = default;
  Action(const Action&) = delete;
  Action& operator=(const Action&) = delete;
  static void declareCamp();

  /// The name of the class, and its hash, which is the action's id.
  virtual std::string getTypeName() const;
  virtual StringHash getTypeId() const;

  unsigned int getPriority() const { return mPriority; }
  /// Changes what others compare with; the place in the plan stays.
  void setPriority(unsigned int priority) { mPriority = priority; }

  /// Known from the insertion into a plan on.
  ActionComponent& getActionComponent() const { return *mComponent; }
  Entity& getEntity() const;
  std::uint64_t getEntityId() const;
  Map& getMap() const;

protected:
  /// False: the action fails and is dropped.
  virtual bool onStartup() { return true; }
  virtual action::Result updateAction(const Clock& /*clock*/) { return action::RESULT_DONE; }
  virtual void onShutdown() {}

private:
  friend class ActionComponent;
  ActionComponent* mComponent = nullptr;
  unsigned int mPriority = 0;
  bool mStarted = false;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::Action)
