#pragma once
#include "game_plugin/scenario/program/Program.h"
#include "game_plugin/scenario/program/RunState.h"

#include "qsf/base/Time.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace script {

/// On whose behalf a client had a trigger fire. Only few triggers ever have one.
struct TriggerCall {
  std::vector<std::uint64_t> callers; ///< entities that the client sent along
  std::uint64_t target = qsf::UNINITIALIZED_ID;
  std::uint32_t player = 0; ///< index of the player; 0 on the host
};

/// A trigger of a running script: the fields that change. What the text says of it stands in its program.
struct ScenarioTrigger {
  qsf::Time lastTimeActive; ///< document time of the last firing or switching on
  const TriggerProgram* program = nullptr;
  std::uint64_t timesFired = 0; ///< since the load; tools show it
  std::unique_ptr<TriggerCall> call;
  std::uint32_t fulfilledConditions = 0; ///< how many held at the last evaluation
  bool active = true;                    ///< the trigger is evaluated
  bool looped = false;                   ///< stays active after firing

  std::string_view name() const { return program->name; }
  std::string_view globalName() const { return program->globalName; }
  std::uint32_t globalNameHash() const { return program->globalNameHash; }
  const std::vector<std::uint64_t>& callers() const;
  std::uint64_t target() const { return call ? call->target : qsf::UNINITIALIZED_ID; }
  std::uint32_t player() const { return call ? call->player : 0; }
  /// The call to be written to; made at its first use.
  TriggerCall& makeCall();
};

/// One run of a program: its clock, its triggers' state and what its records remember. Owned by the script's entry in
/// MapScriptManager and shared with its handlers; a script that starts again goes on with the same document.
struct ScriptDocument {
  explicit ScriptDocument(std::shared_ptr<const Program> program);

  std::shared_ptr<const Program> program;
  qsf::Time time;                        ///< how long the script has run since its start
  std::vector<ScenarioTrigger> triggers; ///< in the order of the text
  std::vector<StateCell> states;         ///< what RunState refers to

  /// First trigger of that local name or hash, or null.
  ScenarioTrigger* findTrigger(std::string_view name);
  ScenarioTrigger* findTrigger(std::uint32_t hash);
  /// The global mark `§` in the encoding that the file uses.
  std::string_view globalMark() const { return program->writesMarkAsUtf8() ? "\xC2\xA7" : "\xA7"; }
};

}
