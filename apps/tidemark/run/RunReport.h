#pragma once
#include "apps/tidemark/run/EditorReport.h"
#include "apps/tidemark/run/EventReport.h"
#include "apps/tidemark/run/GameReport.h"
#include "apps/tidemark/run/WorldReport.h"
#include "apps/tidemark/screens/Screens.h"

#include "game_plugin/tooling/Tooling.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tidemark::run {

/// Entries of one script, or the global ones, as text.
struct StoreReport {
  std::vector<std::pair<std::string, float>> variables;
  std::vector<std::pair<std::string, std::string>> strings;
  std::vector<std::pair<std::string, std::vector<std::uint64_t>>> lists;
  std::vector<std::pair<std::string, bool>> bools;
  bool isEmpty() const { return variables.empty() && strings.empty() && lists.empty() && bools.empty(); }
};

struct ScriptReport {
  script::tooling::ScriptView script;
  std::vector<script::tooling::TriggerView> triggers;
  StoreReport stores;
};

/// What a run has come to: its scripts, how often each trigger fired, the stores, and what the player saw and heard.
/// All texts are UTF-8. docs/report.md tells authors what stands in its JSON form.
struct RunReport {
  std::string map;
  double seconds = 0; ///< simulated
  std::uint64_t frames = 0;
  std::uint64_t faults = 0;
  std::string lastFault;
  std::vector<ScriptReport> scripts;
  std::vector<script::tooling::FateView> fates; ///< scripts that have ended or were never taken
  StoreReport global;
  std::vector<em5::EventRecord> events; ///< those that have ended first
  WorldReport world;
  GameReport game;
  std::optional<std::vector<EditorStep>> editorSteps; ///< nothing in a game
  std::vector<script::tooling::DroppedLineView> droppedLines;
  std::vector<script::tooling::HintView> hints;
  std::vector<script::tooling::InstructionView> instructions; ///< between the machines of a session
  std::vector<screens::Moment> screens;                       ///< in no table
};

/// Reads scripts, stores, dropped lines and hints; the other fields are the caller's.
RunReport collectReport(const script::tooling::Tooling& tooling);

/// A table for people.
std::string toText(const RunReport& report);
/// The same for programs.
std::string toJson(const RunReport& report);

}
