#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/SensorArea.h"

namespace script {

struct IsAnyEntityInSensorAreaCondition : DefaultCondition {
  Argument areaEntities;
  qsf::StringHash filterComponent; ///< the empty text is no component's name and lets nothing pass
  Argument targetListOut;
};

static void read(IsAnyEntityInSensorAreaCondition& condition, const Tokens& tokens) {
  condition.areaEntities =
      readStringParameter(tokens, 1, "Area_Entities", "Area Entities", "All entities which define the area");
  condition.filterComponent = readStringParameter(tokens, 2, "em5::PersonComponent", "FilterComponent",
                                                  "The Component our target unit shall have");
  condition.targetListOut =
      readStringParameter(tokens, 3, "EntityListOut", "TargetList[out]", "All entities which we found in our location");
}

static bool test(const IsAnyEntityInSensorAreaCondition& condition, ScenarioHandler& handler) {
  if (!canSense()) return false;
  const EntityIds areas = handler.ResolveEntityList(condition.areaEntities);
  handler.ClearEntityList(condition.targetListOut);
  for (const qsf::Entity* entity : findEntitiesInAreas(areas))
    if (entity->getComponentById(condition.filterComponent))
      handler.AddToEntityList(condition.targetListOut, entity->getId());
  return handler.GetEntityListSize(condition.targetListOut) != 0;
}

CONDITION(IsAnyEntityInSensorArea, "Units",
          "Returns true if at least one entity is inside a given area. Notice that we use collision to detect units")

}
