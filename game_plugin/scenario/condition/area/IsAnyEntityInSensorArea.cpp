#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/SensorArea.h"
#include "game_plugin/scenario/world/WorldHints.h"

namespace script {

struct IsAnyEntityInSensorAreaCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "An empty FilterComponent lets nothing pass.",
      "An area whose collision mask meets its own group finds itself.",
      "Without a physics world on the map it fails and leaves the out list as it is.",
  };

  Argument areaEntities;
  Argument filterComponent;
  qsf::StringHash filterComponentId;
  Argument targetListOut;
};

static void read(IsAnyEntityInSensorAreaCondition& condition, ParameterReader& in) {
  condition.areaEntities = in.list(1, "Area_Entities", "Area Entities", "All entities which define the area");
  condition.filterComponent =
      in.component(2, "em5::PersonComponent", "FilterComponent", "The Component our target unit shall have");
  condition.filterComponentId = qsf::StringHash(condition.filterComponent.text());
  condition.targetListOut =
      in.listOut(3, "EntityListOut", "TargetList[out]", "All entities which we found in our location");
}

static bool test(const IsAnyEntityInSensorAreaCondition& condition, ScenarioHandler& handler) {
  if (!canSense()) return false;
  if (hints::isOn()) hintUnknownComponent(condition.filterComponent);
  const EntityIds areas = handler.ResolveEntityList(condition.areaEntities);
  handler.ClearEntityList(condition.targetListOut);
  for (const qsf::Entity* entity : findEntitiesInAreas(areas))
    if (entity->getComponentById(condition.filterComponentId))
      handler.AddToEntityList(condition.targetListOut, entity->getId());
  return handler.getEntityListSize(condition.targetListOut) != 0;
}

CONDITION(IsAnyEntityInSensorArea, "Units",
          "Returns true if at least one entity is inside a given area. Notice that we use collision to detect units")

}
