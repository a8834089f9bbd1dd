#include "game_plugin/scenario/lifecycle/FiringLedger.h"

#include "game_plugin/scenario/lifecycle/MapScriptManager.h"

#include <unordered_map>

namespace script {

namespace {

using Counts = std::unordered_map<std::string, std::uint64_t>;

Counts& counts() {
  static Counts noted;
  return noted;
}

/// Calls `visit(key, trigger)` for each trigger of a configured script.
template <class Visit> void visitTriggers(const MapScriptEntry& entry, const Visit& visit) {
  if (!entry.document || entry.globalNamePrefix.empty()) return;
  std::unordered_map<std::string_view, std::size_t> seen; // triggers of equal names are told apart by their order
  for (ScenarioTrigger& trigger : entry.document->triggers)
    visit(entry.project + '\n' + entry.key + '\n' + std::string(trigger.globalName()) + '\n' +
              std::to_string(seen[trigger.name()]++),
          trigger);
}

}

void FiringLedger::store(const MapScriptEntry& entry) {
  visitTriggers(entry, [](const std::string& key, const ScenarioTrigger& trigger) {
    if (trigger.timesFired > 0) counts()[key] = trigger.timesFired;
  });
}

void FiringLedger::restore(MapScriptEntry& entry) {
  if (counts().empty()) return;
  visitTriggers(entry, [](const std::string& key, ScenarioTrigger& trigger) {
    const auto found = counts().find(key);
    if (found != counts().end()) trigger.timesFired = found->second;
  });
}

void FiringLedger::clear() { counts().clear(); }

}
