#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

namespace script {

struct DistanceToUnitCondition : DefaultCondition {
  Argument centerUnit;
  Argument targetUnit;
  Argument distance;
  ComparisonOperator operatorText;
  Argument targetUnitOut;
};

static void read(DistanceToUnitCondition& condition, const Tokens& tokens) {
  condition.centerUnit = readStringParameter(tokens, 1, "no_list", "CenterUnit", "the first unit must be an uint64");
  condition.targetUnit = readStringParameter(tokens, 2, "no_list", "TargetUnit", "");
  condition.distance = readStringParameter(tokens, 3, "200", "TargetUnit", "A float or a variable");
  condition.operatorText = readStringParameter(tokens, 4, "==", "Operator", "(<, <=, ==, >=, >)");
  condition.targetUnitOut = readStringParameter(tokens, 5, "no_list", "TargetUnitOut", "units that passed the check");
}

static bool test(const DistanceToUnitCondition& condition, ScenarioHandler& handler) {
  const EntityIds targets = handler.ResolveEntityList(condition.targetUnit);
  handler.ClearEntityList(condition.targetUnitOut);
  // Kept: read after the clearing, so a centre list that is the out list, too, is empty here and the condition fails.
  const EntityIds centers = handler.ResolveEntityList(condition.centerUnit);
  const qsf::Entity* center = centers.empty() ? nullptr : findEntity(centers.front());
  if (!center) return false;

  for (const std::uint64_t id : targets)
    if (const qsf::Entity* target = findEntity(id)) {
      const float distance = distanceBetween(*target, *center);
      if (condition.operatorText(distance, handler.ResolveFloat(condition.distance)))
        handler.AddToEntityList(condition.targetUnitOut, id);
    }
  return handler.GetEntityListSize(condition.targetUnitOut) != 0;
}

CONDITION(DistanceToUnit, "General",
          "Checks the distance between two units versus a given distance(e.g.Unitdistance > Parameter(Distance))")

}
