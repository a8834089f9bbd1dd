#pragma once
#include "qsf/base/Clock.h"
#include "qsf/base/StringHash.h"
#include "qsf/reflection/Object.h"

#include <string>
#include <utility>
#include <vector>

namespace qsf {

class ActionComponent;
class Entity;
class Map;

namespace action {

/// What an update says: go on, or drop the action.
enum Result { RESULT_CONTINUE, RESULT_DONE };

/// Where a new action goes in a plan; see ActionPlan.
enum InsertionMode { APPEND_TO_BACK = 0, INSERT_AT_FRONT = 1, INSERT_BEFORE_CURRENT = 2, REPLACE_WHOLE_PLAN = 3 };

/// What an action was given: keys, and values in the form of property texts. A value that can be told in more than one
/// way (a movement mode by name and by number) has its key more than once.
using Description = std::vector<std::pair<std::string, std::string>>;

}

/// Something that an entity does over time. Owned by the action component in whose plan it stands, which starts it when
/// its turn has come, updates it each simulated frame and destroys it when it is done. An action that another one
/// interrupts is shut down and started anew when its turn comes again; what it keeps in between is its own affair.
/// Classes are declared with a constructor without arguments and added to the class registry; they are initialised by
/// an `init` of their own after they were put into a plan. One that was never initialised ends by itself.
class QSF_API Action : public Object {
  CAMP_RTTI()
public:
  Action();
  ~Action() override;
  Action(const Action&) = delete;
  Action& operator=(const Action&) = delete;
  static void declareCamp();

  /// The name of the class, and its hash, by which plans know the action.
  virtual std::string getTypeName() const;
  virtual StringHash getTypeId() const;
  virtual action::Description describe() const { return {}; }

  unsigned int getPriority() const { return mPriority; }
  /// Changes what others compare with; the place in the plan stays.
  void setPriority(unsigned int priority) { mPriority = priority; }

  /// Known from the insertion into a plan on.
  ActionComponent& getActionComponent() const { return *mComponent; }
  Entity& getEntity() const;
  std::uint64_t getEntityId() const;
  Map& getMap() const;

  /// Actions that exist in this process, in plans or not; for those who look for leaks.
  static std::size_t getNumberOfLiving();

protected:
  /// False: the action fails and is dropped.
  virtual bool onStartup() { return true; }
  virtual action::Result updateAction(const Clock& /*clock*/) { return action::RESULT_DONE; }
  /// Called for each start that went well: at the end, at an interruption, at the removal and when the entity goes.
  virtual void onShutdown() {}

private:
  friend class ActionComponent;
  ActionComponent* mComponent = nullptr;
  mutable StringHash mTypeId;
  unsigned int mPriority = 0;
  bool mStarted = false;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::Action)
