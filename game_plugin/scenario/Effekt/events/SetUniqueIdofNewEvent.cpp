#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SetUniqueIdofNewEventEffect : DefaultEffect {
  Argument uniqueId;
};

static void read(SetUniqueIdofNewEventEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "The new id. Shall be at least >= 1");
}

static void run(const SetUniqueIdofNewEventEffect& effect, ScenarioHandler& handler) {
  if (ScenarioEvent* event = findUnclaimedScenarioEvent())
    event->uniqueId = truncateToInt(handler.ResolveFloat(effect.uniqueId));
}

EFFECT(SetUniqueIdofNewEvent, "Events",
       "Sets a unique id which is required to assign objectives and fail conditions. Will only work on new Events "
       "which are created with the standart id of (-1)")

}
