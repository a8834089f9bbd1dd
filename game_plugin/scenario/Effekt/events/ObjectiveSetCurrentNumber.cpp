#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ObjectiveSetCurrentNumberEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The id of the objective is taken as it stands, without svar, other than by CreateObjective.",
  };

  Argument uniqueId;
  Argument objectiveId;
  Argument newValue;
};

static void read(ObjectiveSetCurrentNumberEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "");
  effect.objectiveId = in.of(
      ParameterRole::OBJECTIVE, 2, "Id_not_set", "ObjectiveId",
      "Id of the object. Use the one from \"CreateObjective\" to choose the Objective which you want to manipulate");
  effect.newValue = in.number(3, "1", "New Value", "How large is the current number?");
}

static void run(const ObjectiveSetCurrentNumberEffect& effect, ScenarioHandler& handler) {
  if (ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId))
    event->setObjectiveCurrentNumber(effect.objectiveId.text(), truncateToInt(handler.ResolveFloat(effect.newValue)));
}

EFFECT(ObjectiveSetCurrentNumber, "Events", "Sets the current number of an objective (only user::ScenarioEvent)")

}
