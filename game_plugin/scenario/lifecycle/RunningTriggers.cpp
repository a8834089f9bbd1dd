#include "game_plugin/scenario/lifecycle/RunningTriggers.h"

#include "game_plugin/scenario/lifecycle/MapScriptManager.h"

namespace script {

std::optional<RunningTrigger> findRunningTrigger(std::uint32_t hash) {
  const MapScriptManager* manager = MapScriptManager::get();
  if (!manager) return std::nullopt;
  for (const MapScriptEntry* entry : manager->getScriptEntries()) {
    ScenarioHandler* handler = entry->handler;
    if (!handler || handler->isStopped() || !handler->getDocument()) continue;
    if (ScenarioTrigger* trigger = handler->getDocument()->findTrigger(hash)) return RunningTrigger{handler, trigger};
  }
  return std::nullopt;
}

}
