#include "game_plugin/scenario/program/BlankEntry.h"

#include <optional>

namespace script {

namespace {

struct Choice {
  std::string name;
  bool answer = false;
  // Records point at their entry for as long as their program lives, so these stay where they are.
  std::optional<ConditionEntry> condition;
  std::optional<EffectEntry> effect;
};

Choice& choice() {
  static Choice instance;
  return instance;
}

bool holds(const DefaultCondition&, ScenarioHandler&, const Evaluation&) { return true; }
bool fails(const DefaultCondition&, ScenarioHandler&, const Evaluation&) { return false; }
void doNothing(const DefaultEffect&, ScenarioHandler&, std::uint32_t) {}

}

void BlankEntry::choose(const std::string& name, bool answer) {
  choice().name = name;
  choice().answer = answer;
}

const ConditionEntry* BlankEntry::replace(const ConditionEntry* entry) {
  if (choice().name.empty() || !entry || entry->name != choice().name) return entry;
  ConditionEntry& blank = choice().condition.emplace(*entry);
  if (entry->test) blank.test = choice().answer ? &holds : &fails;
  return &blank;
}

const EffectEntry* BlankEntry::replace(const EffectEntry* entry) {
  if (choice().name.empty() || !entry || entry->name != choice().name) return entry;
  EffectEntry& blank = choice().effect.emplace(*entry);
  if (entry->run || entry->kind != EffectKind::ORDINARY) blank.run = &doNothing;
  blank.kind = EffectKind::ORDINARY;
  return &blank;
}

}
