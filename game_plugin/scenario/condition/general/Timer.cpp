#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct TimerCondition : DefaultCondition {
  Argument seconds;
};

static void read(TimerCondition& condition, const Tokens& tokens) {
  condition.seconds =
      readStringParameter(tokens, 1, "5", "Seconds", "Which time needs to pass until the condition is true");
}

/// Strictly more than the given time since the trigger last fired, was switched on, or the script started.
static bool test(const TimerCondition& condition, ScenarioHandler& handler, const Evaluation& evaluation) {
  return evaluation.elapsed.getSeconds() > handler.ResolveFloat(condition.seconds);
}

CONDITION(Timer, "General", "returns true if the Trigger was at least \"active\" since the given time")

}
