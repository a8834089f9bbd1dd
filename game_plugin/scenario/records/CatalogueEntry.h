#pragma once
#include "game_plugin/scenario/records/RecordArena.h"
#include "game_plugin/scenario/records/Records.h"

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

namespace script {

class ScenarioHandler;

/// The words of one script line: the entry's name, then its parameters as raw text.
using Tokens = std::vector<std::string>;

/// What a condition's test is told beside its record.
struct Evaluation {
  qsf::Time elapsed; ///< since the trigger last fired, was switched on, or the start; zero in an `If` block
  const ScenarioTrigger* trigger; ///< null in an `If` block
};

/// One condition of the catalogue. Constant, one per entry, made by CONDITION in the entry's own file.
struct ConditionEntry {
  std::string_view name;
  std::string_view category;
  std::string_view description;
  /// A new record read from the tokens, or null if the entry refuses them.
  DefaultCondition* (*create)(const ConditionEntry& entry, const Tokens& tokens);
  /// The test's own answer, before the `expected` flag. Null for an entry that no executor knows.
  bool (*test)(const DefaultCondition& record, ScenarioHandler& handler, const Evaluation& evaluation);
};

/// Effects that the effect loop runs itself.
enum class EffectKind : unsigned char { Ordinary, Return, PrintTriggerInfo, UseConditionalBlock };

/// One effect of the catalogue, made by EFFECT.
struct EffectEntry {
  std::string_view name;
  std::string_view category;
  std::string_view description;
  DefaultEffect* (*create)(const EffectEntry& entry, const Tokens& tokens);
  /// Null for an entry that no executor knows, or that the effect loop runs itself.
  void (*run)(const DefaultEffect& record, ScenarioHandler& handler, std::uint32_t triggerHash);
  EffectKind kind = EffectKind::Ordinary;
};

namespace detail {

// The entry's own `read`, `test` and `run` are static functions of its file, found through the record's type.

template <class Base, class Record, class Entry> Base* createRecord(const Entry& entry, const Tokens& tokens) {
  Record* record = RecordArena::create<Record>();
  record->entry = &entry;
  if constexpr (requires {
                  { read(*record, tokens) } -> std::same_as<bool>;
                }) {
    if (!read(*record, tokens)) return nullptr;
  } else {
    read(*record, tokens);
  }
  return record;
}

template <class Record>
bool testRecord(const DefaultCondition& record, ScenarioHandler& handler, const Evaluation& evaluation) {
  const Record& typed = static_cast<const Record&>(record);
  if constexpr (requires { test(typed, handler, evaluation); })
    return test(typed, handler, evaluation);
  else
    return test(typed, handler);
}

template <class Record>
void runRecord(const DefaultEffect& record, ScenarioHandler& handler, std::uint32_t triggerHash) {
  const Record& typed = static_cast<const Record&>(record);
  if constexpr (requires { run(typed, handler, triggerHash); })
    run(typed, handler, triggerHash);
  else
    run(typed, handler);
}

}

}

/// Closes the file of the condition NAME: it has a `struct NAMECondition : DefaultCondition`, a
/// `static void read(NAMECondition&, const Tokens&)` (bool if it may refuse the line), and a
/// `static bool test(const NAMECondition&, ScenarioHandler&)`, with a `const Evaluation&` behind if it needs it.
#define CONDITION(NAME, CATEGORY, DESCRIPTION)                                                                         \
  extern const ConditionEntry NAME##ConditionEntry;                                                                    \
  constinit const ConditionEntry NAME##ConditionEntry{                                                                 \
      #NAME, CATEGORY, DESCRIPTION, &detail::createRecord<DefaultCondition, NAME##Condition, ConditionEntry>,          \
      &detail::testRecord<NAME##Condition>};

/// The same for an effect: `static void run(const NAMEEffect&, ScenarioHandler&)`, with the trigger's hash behind if
/// needed.
#define EFFECT(NAME, CATEGORY, DESCRIPTION)                                                                            \
  extern const EffectEntry NAME##EffectEntry;                                                                          \
  constinit const EffectEntry NAME##EffectEntry{#NAME, CATEGORY, DESCRIPTION,                                          \
                                                &detail::createRecord<DefaultEffect, NAME##Effect, EffectEntry>,       \
                                                &detail::runRecord<NAME##Effect>};

/// An effect that the effect loop runs by its kind.
#define EFFECT_OF_KIND(NAME, CATEGORY, DESCRIPTION, KIND)                                                              \
  extern const EffectEntry NAME##EffectEntry;                                                                          \
  constinit const EffectEntry NAME##EffectEntry{                                                                       \
      #NAME,   CATEGORY,        DESCRIPTION, &detail::createRecord<DefaultEffect, NAME##Effect, EffectEntry>,          \
      nullptr, EffectKind::KIND};
