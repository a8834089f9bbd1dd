#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ScenarioEventIsRunningCondition : DefaultCondition {
  Argument uniqueEventId;
};

static void read(ScenarioEventIsRunningCondition& condition, ParameterReader& in) {
  condition.uniqueEventId = in.number(1, "-1", "Unique Event Id", "");
}

static bool test(const ScenarioEventIsRunningCondition& condition, ScenarioHandler& handler) {
  return lookForScenarioEvent(handler, condition.uniqueEventId) != nullptr;
}

CONDITION(ScenarioEventIsRunning, "Events", "Returns true if a instance of script::ScenarioEvent is active")

}
