#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/freeplay/ObjectiveHelper.h"

namespace script {

struct AddEventFailConditionDiedPersonsEffect : DefaultEffect {
  Argument uniqueId;
  Argument maxNumber;
};

static void read(AddEventFailConditionDiedPersonsEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "Id of the ScenarioEvent which it shall be added to");
  effect.maxNumber =
      in.number(2, "999", "MaxNumber", "This is the crittical number of dead persons which aborts the event");
}

static void run(const AddEventFailConditionDiedPersonsEffect& effect, ScenarioHandler& handler) {
  if (ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId))
    em5::ObjectiveHelper(*event).addDeadPersonsFailCondition(truncateToInt(handler.ResolveFloat(effect.maxNumber)));
}

EFFECT(AddEventFailConditionDiedPersons, "Events",
       "Adds a fail condition which will abort the event if too many persons have died")

}
