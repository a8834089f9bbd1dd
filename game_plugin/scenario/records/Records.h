#pragma once
#include "game_plugin/scenario/records/RecordList.h"

#include "qsf/base/Ids.h"
#include "qsf/base/StringHash.h"
#include "qsf/base/Time.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace script {

struct ConditionEntry;
struct EffectEntry;
extern const ConditionEntry DEFAULT_CONDITION_ENTRY;
extern const EffectEntry DEFAULT_EFFECT_ENTRY;

/// Base of all condition records: which entry of the catalogue it is, and what the line said. An entry derives
/// `<EntryName>Condition` and adds its parameters. Filled once, at load; never freed.
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

using Conditions = RecordList<DefaultCondition>;
using Effects = RecordList<DefaultEffect>;

/// One `If`: all conditions must hold for the then effects to run, otherwise the else effects do.
struct ConditionalBlock {
  Conditions conditions;
  Effects thenEffects;
  Effects elseEffects;
};

/// A trigger of a script. The conditions, effects and blocks are fixed after the load; the running fields change. What
/// a tick reads stands in front. There is no list of negative effects: the loader reads them as effects like the
/// others.
struct ScenarioTrigger {
  qsf::Time lastTimeActive;  ///< document time of the last firing or switching on
  bool active = true;        ///< running: the trigger is evaluated
  bool looped = false;       ///< running: stays active after firing
  bool initialActive = true; ///< from the text; copied at each start of the handler
  bool initialLooped = false;
  std::uint32_t multiplayerMode = 0;     ///< 0 host only, 1 evaluated everywhere and run on the host, 2 everywhere
  std::int32_t requiredConditions = -1;  ///< how many conditions must hold
  std::uint32_t fulfilledConditions = 0; ///< how many held at the last evaluation
  Conditions conditions;
  Effects effects;
  std::uint32_t globalNameHash = qsf::UNINITIALIZED_STRING_HASH;
  std::uint32_t line = 0;       ///< line of InitNewTrigger
  std::uint64_t timesFired = 0; ///< since the load; tools show it
  RecordList<ConditionalBlock> conditionalBlocks;
  std::string_view name = "trigger1"; ///< local name; a view like globalName, whose end it is
  std::string_view globalName;        ///< load prefix, `/`, local name; the text is the arena's
  std::uint64_t target = qsf::UNINITIALIZED_ID;
  std::vector<std::uint64_t> callers; ///< entities that a client sent along
  std::uint32_t player = 0;           ///< player on whose behalf the trigger fired; 0 on the host
};

/// A parsed script. Made by the parser, owned by the script's entry in MapScriptManager and kept for good.
struct ScriptDocument {
  qsf::Time time;                        ///< how long the script has run since its start
  std::vector<ScenarioTrigger> triggers; ///< in the order of the text; fixed after the load
  bool writesMarkAsUtf8 = false;         ///< the file is UTF-8 and holds a multi-byte character

  /// First trigger of that local name or hash, or null.
  ScenarioTrigger* findTrigger(std::string_view name);
  ScenarioTrigger* findTrigger(std::uint32_t hash);
  /// The global mark `§` in the encoding that the file uses.
  std::string_view globalMark() const { return writesMarkAsUtf8 ? "\xC2\xA7" : "\xA7"; }

private:
  void buildIndices();
  // Built at the first search; the names they view are fixed after the load.
  std::unordered_map<std::string_view, std::uint32_t> mByName;
  std::unordered_map<std::uint32_t, std::uint32_t> mByHash;
  bool mIndexed = false;
};

}
