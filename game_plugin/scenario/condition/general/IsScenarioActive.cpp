#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <algorithm>

namespace script {

struct IsScenarioActiveCondition : DefaultCondition {
  Argument scenarioFile;
};

static void read(IsScenarioActiveCondition& condition, ParameterReader& in) {
  condition.scenarioFile = in.of(ParameterRole::SCRIPT, 1, "no_file", "ScenarioFile", "The scenarioFile to check");
}

/// A script is known by the path that the manager holds: the file for a listed script, the path as given for a
/// temporary one.
static bool test(const IsScenarioActiveCondition& condition, ScenarioHandler& handler) {
  const std::string& file = handler.ResolveString(condition.scenarioFile);
  if (isLeftAt(file, "no_file", "IsScenarioActiveCondition::ScenarioFile was not found")) return false;
  const MapScriptManager* manager = MapScriptManager::get();
  if (!manager) return false;
  const std::vector<MapScriptEntry*>& entries = manager->getScriptEntries();
  return std::any_of(entries.begin(), entries.end(),
                     [&](const MapScriptEntry* entry) { return entry->handler && entry->path == file; });
}

CONDITION(IsScenarioActive, "General", "Check if a certain scenarioFile is active")

}
