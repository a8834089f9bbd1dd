#include "game_plugin/component/EventTargetComponent.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/EventIdComponent.h"

namespace script {

struct AddEntitiesToEventObjectiveEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The needed number also grows for an entity that waits for the objective already.",
  };

  Argument entityList;
  Argument uniqueId;
  Argument objectiveId;
};

static void read(AddEntitiesToEventObjectiveEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_entitylist", "EntityList", "Entities which shall be added");
  effect.uniqueId = in.number(2, "-1", "UniqueId", "The id of the event");
  effect.objectiveId =
      in.of(ParameterRole::OBJECTIVE, 3, "-1", "ObjectiveId", "The Id of the objective where it should be added to");
}

static void run(const AddEntitiesToEventObjectiveEffect& effect, ScenarioHandler& handler) {
  constexpr int TARGET_OF_OBJECTIVE = 0;
  ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
  if (!event) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    entity.getOrCreateComponent<em5::EventIdComponent>()->addToEvent(*event, TARGET_OF_OBJECTIVE);
    entity.getOrCreateComponent<EventTargetComponent>()->add(effect.objectiveId.text());
    event->increaseNeededNumber(effect.objectiveId.text());
  });
}

EFFECT(AddEntitiesToEventObjective, "Events",
       "Adds an entity to an event. The amount of required objectives is automaticly increased.")

}
