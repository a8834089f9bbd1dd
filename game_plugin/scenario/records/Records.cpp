#include "game_plugin/scenario/records/Records.h"

#include "game_plugin/scenario/records/CatalogueEntry.h"

namespace script {

constinit const ConditionEntry DEFAULT_CONDITION_ENTRY{"DefaultCondition", "", "", nullptr, nullptr};
constinit const EffectEntry DEFAULT_EFFECT_ENTRY{"DefaultEffect", "", "", nullptr, nullptr};

std::string_view DefaultCondition::name() const { return entry->name; }
std::string_view DefaultCondition::category() const { return entry->category; }
std::string_view DefaultCondition::description() const { return entry->description; }

std::string_view DefaultEffect::name() const { return entry->name; }
std::string_view DefaultEffect::category() const { return entry->category; }
std::string_view DefaultEffect::description() const { return entry->description; }

void ScriptDocument::buildIndices() {
  for (std::uint32_t i = 0; i < triggers.size(); ++i) {
    mByName.try_emplace(triggers[i].name, i); // the first trigger of a name wins
    mByHash.try_emplace(triggers[i].globalNameHash, i);
  }
  mIndexed = true;
}

ScenarioTrigger* ScriptDocument::findTrigger(std::string_view name) {
  if (!mIndexed) buildIndices();
  const auto found = mByName.find(name);
  return found == mByName.end() ? nullptr : &triggers[found->second];
}

ScenarioTrigger* ScriptDocument::findTrigger(std::uint32_t hash) {
  if (!mIndexed) buildIndices();
  const auto found = mByHash.find(hash);
  return found == mByHash.end() ? nullptr : &triggers[found->second];
}

}
