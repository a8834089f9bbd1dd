#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/freeplay/FreeplaySystem.h"
#include "em5/plugin/Plugin.h"

namespace script {

struct NumberOfActiveEventsCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "Counts all events of the game, not only those of scripts.",
  };

  Argument numberOfEvents;
  ComparisonOperator operatorText;
};

static void read(NumberOfActiveEventsCondition& condition, ParameterReader& in) {
  condition.numberOfEvents = in.number(1, "0", "Number of Events", "");
  condition.operatorText = in.comparison(2, "==", "Operator", "");
}

static bool test(const NumberOfActiveEventsCondition& condition, ScenarioHandler& handler) {
  const em5::Plugin* game = em5::Plugin::getInstance();
  const std::size_t active = game ? game->getFreeplaySystem().getEventManager().getNumberOfActiveEvents() : 0;
  return condition.operatorText(static_cast<float>(active), handler.ResolveFloat(condition.numberOfEvents));
}

CONDITION(NumberOfActiveEvents, "Events",
          "Compares the active events with a given number->Example CurrentEvents == NumberToCompare")

}
