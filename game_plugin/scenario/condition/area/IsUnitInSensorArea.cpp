#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/SensorArea.h"

namespace script {

struct IsUnitInSensorAreaCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "With one list as TargetList[in] and TargetList[out] it empties the list and fails, since the out list is "
      "emptied before the in list is read.",
      "An area whose collision mask meets its own group finds itself.",
      "Without a physics world on the map it fails and leaves the out list as it is.",
  };

  Argument areaEntities;
  Argument targetListIn;
  Argument targetListOut;
};

static void read(IsUnitInSensorAreaCondition& condition, ParameterReader& in) {
  condition.areaEntities = in.list(1, "Area_Entities", "Area Entities", "All entities which define the area");
  condition.targetListIn = in.list(2, "TargetList", "TargetList[in]", "Units which are checked");
  condition.targetListOut =
      in.listOut(3, "EntityListOut", "TargetList[out]", "All entities which we found in our location");
}

static bool test(const IsUnitInSensorAreaCondition& condition, ScenarioHandler& handler) {
  if (!canSense()) return false;
  const EntityIds areas = handler.ResolveEntityList(condition.areaEntities);
  handler.ClearEntityList(condition.targetListOut);
  for (const qsf::Entity* entity : findEntitiesInAreas(areas))
    if (handler.isInEntityList(condition.targetListIn, entity->getId()))
      handler.AddToEntityList(condition.targetListOut, entity->getId());
  return handler.getEntityListSize(condition.targetListOut) != 0;
}

CONDITION(IsUnitInSensorArea, "Units", "Returns true if at least one entity from the targetlist is inside the area")

}
