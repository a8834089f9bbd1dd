#pragma once
#include "qsf/action/Action.h"

#include <memory>
#include <vector>

namespace qsf {

/// The actions of an entity in the order of their doing; the first is the current one, from its insertion on. The order
/// is that of insertion and mode; priorities never reorder. A new action goes APPEND_TO_BACK behind all;
/// INSERT_AT_FRONT in front of all but the current one, and of that, too, if its own priority is higher;
/// INSERT_BEFORE_CURRENT in front of all; REPLACE_WHOLE_PLAN alone.
class QSF_API ActionPlan {
public:
  const std::vector<Action*>& getActions() const { return mView; }
  bool isEmpty() const { return mView.empty(); }

private:
  friend class ActionComponent;
  void insert(std::unique_ptr<Action> action, action::InsertionMode mode);
  std::unique_ptr<Action> remove(const Action& action);

  std::vector<std::unique_ptr<Action>> mActions;
  std::vector<Action*> mView;
};

}
