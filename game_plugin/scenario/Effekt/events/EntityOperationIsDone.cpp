#include "game_plugin/component/EventTargetComponent.h"
#include "game_plugin/event/ScenarioEvent.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/map/EntityHelper.h"

namespace script {

struct EntityOperationIsDoneEffect : DefaultEffect {
  Argument entityList;
  Argument objectiveId;
};

static void read(EntityOperationIsDoneEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_entitylist", "EntityList", "The entity which shall be removed from the event");
  effect.objectiveId =
      in.of(ParameterRole::OBJECTIVE, 2, "-1", "ObjectiveId",
            "The objective which counter shall be increased (Notice that the uniqueEventid is not required)");
}

static void run(const EntityOperationIsDoneEffect& effect, ScenarioHandler& handler) {
  const std::string& objectiveId = effect.objectiveId.text();
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    ScenarioEvent* event = asScenarioEvent(em5::EntityHelper(entity).getFreeplayEvent());
    auto* target = entity.getComponent<EventTargetComponent>();
    if (!event || !target || !target->has(objectiveId)) return;
    target->remove(objectiveId);
    // Only an entity that nothing else waits for leaves the objective's list.
    event->increaseObjective(objectiveId, target->getObjectiveIds().empty() ? &entity : nullptr);
  });
}

EFFECT(EntityOperationIsDone, "Events",
       "Needs to be called to tell the game that something was done with an entity which belongs to a custom event.")

}
