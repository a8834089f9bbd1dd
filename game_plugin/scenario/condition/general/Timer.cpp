#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct TimerCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "In an If block no time has passed, so there it holds for a negative number only.",
  };

  Argument seconds;
};

static void read(TimerCondition& condition, ParameterReader& in) {
  condition.seconds = in.number(1, "5", "Seconds", "Which time needs to pass until the condition is true");
}

/// Strictly more than the given time since the trigger last fired, was switched on, or the script started.
static bool test(const TimerCondition& condition, ScenarioHandler& handler, const Evaluation& evaluation) {
  return evaluation.elapsed.getSeconds() > handler.ResolveFloat(condition.seconds);
}

CONDITION(Timer, "General", "returns true if the Trigger was at least \"active\" since the given time")

}
