#include "game_plugin/scenario/tick/ScenarioConditions.h"

#include "game_plugin/scenario/hints/ExecutionPoint.h"
#include "game_plugin/scenario/program/BlankEntry.h"
#include "game_plugin/scenario/program/EntryIndex.h"

namespace script {

std::span<const ConditionGroup* const> ScenarioConditions::groups() {
  static constexpr const ConditionGroup* GROUPS[] = {&ScenarioConditions_Brill,
                                                     &ScenarioConditions_Tarn,
                                                     &ScenarioConditions_Event,
                                                     &ComponentsAndVariablesConditions,
                                                     &MPConditions,
                                                     &GamepadConditions};
  return GROUPS;
}

const ConditionEntry* ScenarioConditions::find(std::string_view name) {
  static const EntryIndex<ConditionEntry> index = [] {
    EntryIndex<ConditionEntry> built;
    for (const ConditionGroup* group : groups())
      built.add(group->chain);
    return built;
  }();
  return BlankEntry::replace(index.find(name));
}

bool ScenarioConditions::evaluate(qsf::Time elapsed, const Conditions& conditions, std::uint32_t required,
                                  std::uint32_t& fulfilled, const ScenarioTrigger* trigger) const {
  const std::uint32_t count = static_cast<std::uint32_t>(conditions.size());
  const Evaluation evaluation{elapsed, trigger};
  std::uint32_t evaluated = 0;
  std::uint32_t failed = 0;
  bool result = true;
  for (const DefaultCondition* condition : conditions) {
    if (count - failed < required) {
      result = false; // the rest can't make up for what failed, and is not tested
      break;
    }
    ++evaluated;
    executionPoint.line = condition->line;
    // A name that no executor knows counts as held.
    if (condition->entry->test && condition->entry->test(*condition, *mHandler, evaluation) != condition->expected)
      ++failed;
  }
  fulfilled = evaluated - failed;
  return count - failed >= required && result;
}

}
