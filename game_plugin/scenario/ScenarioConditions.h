#pragma once
#include "game_plugin/scenario/records/EntryGroup.h"

#include <memory>
#include <vector>

namespace script {

CONDITION_GROUP(ScenarioConditions_Brill)
CONDITION_GROUP(ScenarioConditions_Tarn)
CONDITION_GROUP(ScenarioConditions_Event)
CONDITION_GROUP(ComponentsAndVariablesConditions)
CONDITION_GROUP(MPConditions)
CONDITION_GROUP(GamepadConditions)

/// The front door of the condition catalogue: makes records at load time and evaluates lists of them. Owns its groups.
/// The parser's has no handler and only makes records.
class ScenarioConditions {
public:
  explicit ScenarioConditions(ScenarioHandler* handler);
  virtual ~ScenarioConditions();
  ScenarioConditions(const ScenarioConditions&) = delete;
  ScenarioConditions& operator=(const ScenarioConditions&) = delete;

  /// A new record, or null for `Always` (silently) and for a name that no group knows (with a message).
  DefaultCondition* create(const Tokens& tokens) const;

  /// Tests the conditions in order until `required` of them can't be reached any more. `fulfilled` becomes the number
  /// that held among those tested. True if at least `required` didn't fail. The trigger is null for an `If` block.
  bool evaluate(qsf::Time elapsed, const Conditions& conditions, std::uint32_t required, std::uint32_t& fulfilled,
                const ScenarioTrigger* trigger) const;

  /// The groups in the order in which they are asked to make a record.
  std::vector<const ConditionGroup*> groupsInCreationOrder() const;
  /// The groups in the order in which they are asked to evaluate one. The last two differ.
  std::vector<const ConditionGroup*> groupsInEvaluationOrder() const;

private:
  ScenarioConditions_Brill mBrill;
  ScenarioConditions_Tarn mTarn;
  ScenarioConditions_Event mEvent;
  ComponentsAndVariablesConditions mComponentsAndVariables;
  MPConditions mMultiplayer;
  GamepadConditions mGamepad;
  ScenarioHandler* mHandler;
};

}
