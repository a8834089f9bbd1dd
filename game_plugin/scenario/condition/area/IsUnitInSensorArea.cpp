#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/SensorArea.h"

namespace script {

struct IsUnitInSensorAreaCondition : DefaultCondition {
  Argument areaEntities;
  Argument targetListIn;
  Argument targetListOut;
};

static void read(IsUnitInSensorAreaCondition& condition, const Tokens& tokens) {
  condition.areaEntities =
      readStringParameter(tokens, 1, "Area_Entities", "Area Entities", "All entities which define the area");
  condition.targetListIn = readStringParameter(tokens, 2, "TargetList", "TargetList[in]", "Units which are checked");
  condition.targetListOut =
      readStringParameter(tokens, 3, "EntityListOut", "TargetList[out]", "All entities which we found in our location");
}

/// Kept: the in list is read after the out list was cleared, so this condition can't filter in place. With one list for
/// both it empties the list and fails, and scripts rely on that.
static bool test(const IsUnitInSensorAreaCondition& condition, ScenarioHandler& handler) {
  if (!canSense()) return false;
  const EntityIds areas = handler.ResolveEntityList(condition.areaEntities);
  handler.ClearEntityList(condition.targetListOut);
  for (const qsf::Entity* entity : findEntitiesInAreas(areas))
    if (handler.IsInEntityList(condition.targetListIn, entity->getId()))
      handler.AddToEntityList(condition.targetListOut, entity->getId());
  return handler.GetEntityListSize(condition.targetListOut) != 0;
}

CONDITION(IsUnitInSensorArea, "Units", "Returns true if at least one entity from the targetlist is inside the area")

}
