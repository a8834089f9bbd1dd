#pragma once
#include "game_plugin/scenario/program/Records.h"

#include "qsf/base/Time.h"

#include <concepts>
#include <cstdint>
#include <span>
#include <string_view>

namespace script {

class ParameterReader;
class ProgramMemory;
class ScenarioHandler;
struct ScenarioTrigger;

/// What an entry does that looks odd but is kept, since scripts rely on it: one sentence each. An entry that has some
/// holds them as `static constexpr std::string_view ODDITIES[]` in its record.
using Oddities = std::span<const std::string_view>;

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
  /// A new record in the reader's program, or null if the entry refuses the line.
  DefaultCondition* (*create)(const ConditionEntry& entry, ParameterReader& in);
  /// Has a reader that describes told what the parameters are. No record remains.
  void (*describe)(ParameterReader& in);
  /// The test's own answer, before the `expected` flag. Null for an entry that no executor knows.
  bool (*test)(const DefaultCondition& record, ScenarioHandler& handler, const Evaluation& evaluation);
  Oddities oddities;
};

/// Effects that the effect loop runs itself.
enum class EffectKind : unsigned char { ORDINARY, RETURN, PRINT_TRIGGER_INFO, USE_CONDITIONAL_BLOCK };

/// One effect of the catalogue, made by EFFECT.
struct EffectEntry {
  std::string_view name;
  std::string_view category;
  std::string_view description;
  DefaultEffect* (*create)(const EffectEntry& entry, ParameterReader& in);
  void (*describe)(ParameterReader& in);
  /// Null for an entry that no executor knows, or that the effect loop runs itself.
  void (*run)(const DefaultEffect& record, ScenarioHandler& handler, std::uint32_t triggerHash);
  Oddities oddities;
  EffectKind kind = EffectKind::ORDINARY;
};

namespace detail {

/// The memory of the program that the reader reads for.
ProgramMemory& memoryOf(const ParameterReader& in);

// The entry's own `read`, `test` and `run` are static functions of its file, found through the record's type.

template <class Base, class Record, class Entry> Base* createRecord(const Entry& entry, ParameterReader& in) {
  Record* record = memoryOf(in).template create<Record>();
  record->entry = &entry;
  if constexpr (requires {
                  { read(*record, in) } -> std::same_as<bool>;
                }) {
    if (!read(*record, in)) return nullptr;
  } else {
    read(*record, in);
  }
  return record;
}

template <class Record> void describeRecord(ParameterReader& in) {
  Record record;
  read(record, in);
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

template <class Record> constexpr Oddities odditiesOf() {
  if constexpr (requires { Record::ODDITIES; })
    return Record::ODDITIES;
  else
    return {};
}

}

}

/// Defines the condition NAME, asked through TEST. For the two macros that close a condition's file.
#define CONDITION_ASKED_THROUGH(NAME, CATEGORY, DESCRIPTION, TEST)                                                     \
  extern const ConditionEntry NAME##ConditionEntry;                                                                    \
  constinit const ConditionEntry NAME##ConditionEntry{                                                                 \
      #NAME,                                                                                                           \
      CATEGORY,                                                                                                        \
      DESCRIPTION,                                                                                                     \
      &detail::createRecord<DefaultCondition, NAME##Condition, ConditionEntry>,                                        \
      &detail::describeRecord<NAME##Condition>,                                                                        \
      TEST,                                                                                                            \
      detail::odditiesOf<NAME##Condition>()};

/// Closes the file of the condition NAME: it has a `struct NAMECondition : DefaultCondition`, a
/// `static void read(NAMECondition&, ParameterReader&)` (bool if it may refuse the line), and a
/// `static bool test(const NAMECondition&, ScenarioHandler&)`, with a `const Evaluation&` behind if it needs it.
#define CONDITION(NAME, CATEGORY, DESCRIPTION)                                                                         \
  CONDITION_ASKED_THROUGH(NAME, CATEGORY, DESCRIPTION, &detail::testRecord<NAME##Condition>)

/// Closes the file of a condition that scripts can write and no executor knows: it counts as passed wherever it is
/// asked, also with `!`. Its file has no `test`.
#define CONDITION_WITHOUT_TEST(NAME, CATEGORY, DESCRIPTION)                                                            \
  CONDITION_ASKED_THROUGH(NAME, CATEGORY, DESCRIPTION, nullptr)

/// Defines the effect NAME, run through RUN or by its kind. For the two macros that close an effect's file.
#define EFFECT_RUN_THROUGH(NAME, CATEGORY, DESCRIPTION, RUN, KIND)                                                     \
  extern const EffectEntry NAME##EffectEntry;                                                                          \
  constinit const EffectEntry NAME##EffectEntry{#NAME,                                                                 \
                                                CATEGORY,                                                              \
                                                DESCRIPTION,                                                           \
                                                &detail::createRecord<DefaultEffect, NAME##Effect, EffectEntry>,       \
                                                &detail::describeRecord<NAME##Effect>,                                 \
                                                RUN,                                                                   \
                                                detail::odditiesOf<NAME##Effect>(),                                    \
                                                EffectKind::KIND};

/// The same as CONDITION for an effect: `static void run(const NAMEEffect&, ScenarioHandler&)`, with the trigger's hash
/// behind if needed.
#define EFFECT(NAME, CATEGORY, DESCRIPTION)                                                                            \
  EFFECT_RUN_THROUGH(NAME, CATEGORY, DESCRIPTION, &detail::runRecord<NAME##Effect>, ORDINARY)

/// An effect that the effect loop runs by its kind.
#define EFFECT_OF_KIND(NAME, CATEGORY, DESCRIPTION, KIND) EFFECT_RUN_THROUGH(NAME, CATEGORY, DESCRIPTION, nullptr, KIND)
