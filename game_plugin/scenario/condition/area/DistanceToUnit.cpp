#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

namespace script {

struct DistanceToUnitCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "With one list as CenterUnit and as TargetUnitOut it never holds, since the out list is emptied before the "
      "centre is read.",
      "Of CenterUnit only the first id counts; without its entity the condition fails.",
  };

  Argument centerUnit;
  Argument targetUnit;
  Argument distance;
  ComparisonOperator operatorText;
  Argument targetUnitOut;
};

static void read(DistanceToUnitCondition& condition, ParameterReader& in) {
  condition.centerUnit = in.list(1, "no_list", "CenterUnit", "the first unit must be an uint64");
  condition.targetUnit = in.list(2, "no_list", "TargetUnit", "");
  condition.distance = in.number(3, "200", "TargetUnit", "A float or a variable");
  condition.operatorText = in.comparison(4, "==", "Operator", "(<, <=, ==, >=, >)");
  condition.targetUnitOut = in.listOut(5, "no_list", "TargetUnitOut", "units that passed the check");
}

static bool test(const DistanceToUnitCondition& condition, ScenarioHandler& handler) {
  const EntityIds targets = handler.ResolveEntityList(condition.targetUnit);
  handler.ClearEntityList(condition.targetUnitOut);
  // After the clearing, on purpose.
  const EntityIds centers = handler.ResolveEntityList(condition.centerUnit);
  const qsf::Entity* center = centers.empty() ? nullptr : findEntity(centers.front());
  if (!center) return false;

  for (const std::uint64_t id : targets)
    if (const qsf::Entity* target = findEntity(id)) {
      const float distance = distanceBetween(*target, *center);
      if (condition.operatorText(distance, handler.ResolveFloat(condition.distance)))
        handler.AddToEntityList(condition.targetUnitOut, id);
    }
  return handler.getEntityListSize(condition.targetUnitOut) != 0;
}

CONDITION(DistanceToUnit, "General",
          "Checks the distance between two units versus a given distance(e.g.Unitdistance > Parameter(Distance))")

}
