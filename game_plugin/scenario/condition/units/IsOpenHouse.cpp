#include "game_plugin/component/OpenHouseComponent.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/map/Map.h"

namespace script {

struct IsOpenHouseCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "Ids are compared only: an entity that is gone still finds the house that lists it.",
  };

  Argument entityList;
  Argument entityListOut;
};

static void read(IsOpenHouseCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "EntitiesToCheck", "EntityList", "List of entities that are checked");
  condition.entityListOut = in.listOut(2, "no_list", "EntityListOut",
                                       "If the condition is true it will also write the OpenHouse to this list");
}

static bool test(const IsOpenHouseCondition& condition, ScenarioHandler& handler) {
  const EntityIds ids = handler.ResolveEntityList(condition.entityList);
  handler.ClearEntityList(condition.entityListOut);
  const std::vector<qsf::Component*>& houses =
      qsf::getMainMap().getComponentInstances(OpenHouseComponent::COMPONENT_ID);
  for (const std::uint64_t id : ids)
    for (const qsf::Component* house : houses)
      if (static_cast<const OpenHouseComponent*>(house)->holdsEntity(id))
        handler.AddToEntityList(condition.entityListOut, house->getEntityId());
  return handler.getEntityListSize(condition.entityListOut) != 0;
}

CONDITION(IsOpenHouse, "General", "Checks if the entity is linked to the openhouse or is the openhouse itself")

}
