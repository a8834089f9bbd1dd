#include "game_plugin/event/ScenarioEvent.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <algorithm>

namespace script {

struct ScenarioEventIsOfEventtypeCondition : DefaultCondition {
  Argument uniqueEventId;
  Argument eventtypes;
};

static void read(ScenarioEventIsOfEventtypeCondition& condition, ParameterReader& in) {
  condition.uniqueEventId =
      in.number(1, "-1", "Unique Event Id",
                "Used to identify the Event. New Events can be detected by setting this parameter to -1");
  condition.eventtypes = in.raw(2, "no_type", "Eventtypes", "The Eventtype is compared to the given value");
}

static bool test(const ScenarioEventIsOfEventtypeCondition& condition, ScenarioHandler& handler) {
  return std::ranges::any_of(getCurrentScenarioEvents(), [&](const ScenarioEvent* event) {
    return static_cast<float>(event->uniqueId) == handler.ResolveFloat(condition.uniqueEventId) &&
           event->getEventType() == condition.eventtypes.text();
  });
}

CONDITION(ScenarioEventIsOfEventtype, "Events",
          "True if a script::ScenarioEvent has given Eventtype. The Eventtype can be set on the Eventpool. Usefull if "
          "you want to define multiple freeplay-events")

}
