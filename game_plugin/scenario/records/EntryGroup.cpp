#include "game_plugin/scenario/records/EntryGroup.h"

#include <algorithm>

namespace script {

DefaultCondition* ConditionGroup::create(const Tokens& tokens) const {
  for (const ConditionEntry* entry : mChain)
    if (entry->name == tokens[0]) return entry->create(*entry, tokens);
  return nullptr;
}

int ConditionGroup::evaluate(const Evaluation& evaluation, const DefaultCondition& record) const {
  const auto found = std::find_if(mChain.begin(), mChain.end(),
                                  [&](const ConditionEntry* entry) { return entry->name == record.name(); });
  if (found == mChain.end() || !(*found)->test) return 2;
  return (*found)->test(record, *mHandler, evaluation) == record.expected ? 1 : 0;
}

DefaultEffect* EffectGroup::create(const Tokens& tokens) const {
  for (const EffectEntry* entry : mChain)
    if (entry->name == tokens[0]) return entry->create(*entry, tokens);
  return nullptr;
}

bool EffectGroup::execute(const DefaultEffect& record, std::uint32_t triggerHash) const {
  const auto found = std::find_if(mChain.begin(), mChain.end(),
                                  [&](const EffectEntry* entry) { return entry->name == record.name(); });
  if (found == mChain.end() || !(*found)->run) return false;
  (*found)->run(record, *mHandler, triggerHash);
  return true;
}

}
