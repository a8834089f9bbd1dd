#pragma once
#include "game_plugin/scenario/program/RecordList.h"

#include <cstdint>
#include <string_view>

namespace script {

struct ConditionEntry;
struct EffectEntry;
extern const ConditionEntry DEFAULT_CONDITION_ENTRY;
extern const EffectEntry DEFAULT_EFFECT_ENTRY;

/// Base of all condition records: which entry of the catalogue it is, and what the line said. An entry derives
/// `<EntryName>Condition` and adds its parameters. Filled once, at load; shared by all runs of the program.
struct DefaultCondition {
  const ConditionEntry* entry = &DEFAULT_CONDITION_ENTRY;
  std::uint32_t line = 0; ///< line of the script's file, from 1
  bool expected = true;   ///< false if the line began with `!`; the condition holds when its test equals this

  std::string_view name() const;
  std::string_view category() const;
  std::string_view description() const;
};

/// Base of all effect records.
struct DefaultEffect {
  const EffectEntry* entry = &DEFAULT_EFFECT_ENTRY;
  std::uint32_t line = 0;

  std::string_view name() const;
  std::string_view category() const;
  std::string_view description() const;
};

using Conditions = RecordList<const DefaultCondition>;
using Effects = RecordList<const DefaultEffect>;

/// One `If`: all conditions must hold for the then effects to run, otherwise the else effects do.
struct ConditionalBlock {
  Conditions conditions;
  Effects thenEffects;
  Effects elseEffects;
};

}
