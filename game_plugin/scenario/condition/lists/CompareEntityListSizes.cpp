#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct CompareEntityListSizesCondition : DefaultCondition {
  Argument entityList;
  Argument entityList2;
  ComparisonOperator operatorText;
};

static void read(CompareEntityListSizesCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "", "EntityList", "Units that shall be checked");
  condition.operatorText = in.comparison(2, "==", "Operator", "String that we hope to find inside the Property-Value");
  condition.entityList2 = in.list(3, "", "EntityList2", "Units that shall be checked");
}

static bool test(const CompareEntityListSizesCondition& condition, ScenarioHandler& handler) {
  const float size = static_cast<float>(handler.getEntityListSize(condition.entityList));
  const float size2 = static_cast<float>(handler.getEntityListSize(condition.entityList2));
  return condition.operatorText(size, size2);
}

CONDITION(CompareEntityListSizes, "EntityLists", "Compares the size of two entitylists")

}
