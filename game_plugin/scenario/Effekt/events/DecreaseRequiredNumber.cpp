#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct DecreaseRequiredNumberEffect : DefaultEffect {
  Argument uniqueId;
  Argument objectiveId;
};

static void read(DecreaseRequiredNumberEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "The id of the event");
  effect.objectiveId = in.of(ParameterRole::OBJECTIVE, 2, "-1", "ObjectiveId",
                             "The id of the objective which required number shall be lowered");
}

static void run(const DecreaseRequiredNumberEffect& effect, ScenarioHandler& handler) {
  if (ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId))
    event->decreaseNeededNumber(effect.objectiveId.text());
}

EFFECT(DecreaseRequiredNumber, "Events", "Decreases the required number of an Objective by 1.")

}
