#pragma once
#include <cstdint>
#include <optional>

namespace script {

class ScenarioHandler;
struct ScenarioTrigger;

/// A trigger and the handler that runs its script.
struct RunningTrigger {
  ScenarioHandler* handler;
  ScenarioTrigger* trigger;
};

/// The first trigger of that hash over all scripts that run, in the order of the scripts.
std::optional<RunningTrigger> findRunningTrigger(std::uint32_t hash);

}
