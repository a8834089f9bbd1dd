#pragma once
#include "game_plugin/scenario/program/EntryGroup.h"

#include <span>
#include <string_view>

namespace script {

extern const ConditionGroup ScenarioConditions_Brill;
extern const ConditionGroup ScenarioConditions_Tarn;
extern const ConditionGroup ScenarioConditions_Event;
extern const ConditionGroup ComponentsAndVariablesConditions;
extern const ConditionGroup MPConditions;
extern const ConditionGroup GamepadConditions;

/// The front door of the condition catalogue: finds entries when a line is read and evaluates lists of records for one
/// handler. A record knows its entry, so a tick never compares names; results are those of asking the groups in order.
class ScenarioConditions {
public:
  explicit ScenarioConditions(ScenarioHandler* handler) : mHandler(handler) {}

  /// The groups in the order in which they are asked for a name.
  static std::span<const ConditionGroup* const> groups();
  /// The first entry of that name, or null.
  static const ConditionEntry* find(std::string_view name);

  /// Tests the conditions in order until `required` of them can't be reached any more. `fulfilled` becomes the number
  /// that held among those tested. True if at least `required` didn't fail. The trigger is null for an `If` block.
  bool evaluate(qsf::Time elapsed, const Conditions& conditions, std::uint32_t required, std::uint32_t& fulfilled,
                const ScenarioTrigger* trigger) const;

private:
  ScenarioHandler* mHandler;
};

}
