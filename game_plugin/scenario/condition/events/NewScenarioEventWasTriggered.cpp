#include "game_plugin/event/ScenarioEvent.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <algorithm>

namespace script {

struct NewScenarioEventWasTriggeredCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "Stays true until a script claims the event.",
  };
};

static void read(NewScenarioEventWasTriggeredCondition& /*condition*/, ParameterReader& /*in*/) {}

static bool test(const NewScenarioEventWasTriggeredCondition& /*condition*/, ScenarioHandler& /*handler*/) {
  return std::ranges::any_of(getCurrentScenarioEvents(),
                             [](const ScenarioEvent* event) { return event->uniqueId == ScenarioEvent::UNCLAIMED; });
}

CONDITION(NewScenarioEventWasTriggered, "Events",
          "True if a script::ScenarioEvent has the UniqueEventId of -1. This Id is automaticly set to -1 on creation")

}
