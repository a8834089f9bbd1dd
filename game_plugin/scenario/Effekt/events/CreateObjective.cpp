#include "game_plugin/event/ObjectiveKind.h"
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct CreateObjectiveEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "An objective that is there already takes the new text and number, but keeps its kind.",
      "A kind that isn't known means REQUIRED.",
      "An objective with the needed number 0 is never reached.",
  };

  Argument uniqueId;
  Argument objectiveText;
  Argument objectiveId;
  Argument requiredNumber;
  Argument required;
};

static void read(CreateObjectiveEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "");
  effect.objectiveText = in.text(2, "Text not set", "ObjectiveText",
                                 "Text which appears. Use (%d / %d) to display (CurrentNumber / RequiredNumber)");
  effect.objectiveId =
      in.of(ParameterRole::OBJECTIVE, 3, "Id_not_set", "ObjectiveId", "Id of the object. Use a unique one if possible");
  effect.requiredNumber = in.number(4, "1", "RequiredNumber", "How large is the required number?");
  effect.required = in.words(5, "REQUIRED", "Required", "use REQUIRED,OPTIONAL or FAIL for different behaviours",
                             wordsOf<OBJECTIVE_KINDS>());
}

static void run(const CreateObjectiveEffect& effect, ScenarioHandler& handler) {
  ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
  if (!event) return;
  const std::string text = handler.ResolveString(effect.objectiveText);
  const std::string id = handler.ResolveString(effect.objectiveId);
  event->createObjective(text, id, truncateToInt(handler.ResolveFloat(effect.requiredNumber)),
                         handler.ResolveString(effect.required));
}

EFFECT(CreateObjective, "Events",
       "Creates a new objective inside of the user::ScenarioEvent. Notice that RequiredNumber cannot be 0")

}
