#include "game_plugin/scenario/ScenarioConditions.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/records/EntryIndex.h"

namespace script {

ScenarioConditions::ScenarioConditions(ScenarioHandler* handler)
    : mBrill(handler), mTarn(handler), mEvent(handler), mComponentsAndVariables(handler), mMultiplayer(handler),
      mGamepad(handler), mHandler(handler) {}

ScenarioConditions::~ScenarioConditions() = default;

std::vector<const ConditionGroup*> ScenarioConditions::groupsInCreationOrder() const {
  return {&mBrill, &mTarn, &mEvent, &mComponentsAndVariables, &mMultiplayer, &mGamepad};
}

std::vector<const ConditionGroup*> ScenarioConditions::groupsInEvaluationOrder() const {
  return {&mBrill, &mTarn, &mEvent, &mComponentsAndVariables, &mGamepad, &mMultiplayer};
}

DefaultCondition* ScenarioConditions::create(const Tokens& tokens) const {
  static const EntryIndex<ConditionEntry> index = [this] {
    EntryIndex<ConditionEntry> built;
    for (const ConditionGroup* group : groupsInCreationOrder())
      built.add(group->chain());
    return built;
  }();

  // A pseudo condition: scripts write it where nothing is to be tested.
  if (tokens[0] == "Always") return nullptr;
  if (const ConditionEntry* entry = index.find(tokens[0]))
    if (DefaultCondition* record = entry->create(*entry, tokens)) return record;
  if (!isDocumenting()) logInfo("[MS] Error: Condition " + tokens[0] + " was not found");
  return nullptr;
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
    // A name that no executor knows counts as held.
    if (condition->entry->test && condition->entry->test(*condition, *mHandler, evaluation) != condition->expected)
      ++failed;
  }
  fulfilled = evaluated - failed;
  return count - failed >= required && result;
}

}
