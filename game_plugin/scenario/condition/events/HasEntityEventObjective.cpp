#include "game_plugin/component/EventTargetComponent.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct HasEntityEventObjectiveCondition : DefaultCondition {
  Argument entityList;
  Argument entityListOut;
  Argument objectiveName;
};

static void read(HasEntityEventObjectiveCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "no_list", "EntityList", "EntityList which should be checked");
  condition.entityListOut = in.listOut(
      2, "no_list", "EntityListOut",
      "All the entities which passed the checks are written to this list. Notice that the list is cleared before. BUT "
      "EntityList and EntityList[out] can be the same - this will remove units that dont match this criteria.");
  condition.objectiveName =
      in.of(ParameterRole::OBJECTIVE, 3, "no_Objective", "ObjectiveName", "Id of the Objective which shall be matched");
}

static bool test(const HasEntityEventObjectiveCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.entityList, condition.entityListOut, [&](const qsf::Entity& entity) {
    const auto* target = entity.getComponent<EventTargetComponent>();
    return target && target->has(condition.objectiveName.text());
  });
}

CONDITION(HasEntityEventObjective, "Events",
          "True if at least one entity is registered to an event with the given objectiveid")

}
