#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/freeplay/ObjectiveHelper.h"

namespace script {

struct AddEventFailConditionBurningObjectsEffect : DefaultEffect {
  Argument uniqueId;
  Argument maxNumber;
};

static void read(AddEventFailConditionBurningObjectsEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "Id of the ScenarioEvent which it shall be added to");
  effect.maxNumber =
      in.number(2, "999", "MaxNumber", "This is the critical number of burning objects which aborts the event");
}

static void run(const AddEventFailConditionBurningObjectsEffect& effect, ScenarioHandler& handler) {
  if (ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId))
    em5::ObjectiveHelper(*event).addBurningObjectsAndBuildingsFailCondition(
        truncateToInt(handler.ResolveFloat(effect.maxNumber)));
}

EFFECT(AddEventFailConditionBurningObjects, "Events",
       "Adds a fail condition which will abort the event if too many objects are burning")

}
