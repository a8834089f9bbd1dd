#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct CompareEntityListSizesCondition : DefaultCondition {
  Argument entityList;
  Argument entityList2;
  ComparisonOperator operatorText;
};

static void read(CompareEntityListSizesCondition& condition, const Tokens& tokens) {
  condition.entityList = readStringParameter(tokens, 1, "", "EntityList", "Units that shall be checked");
  condition.operatorText =
      readStringParameter(tokens, 2, "==", "Operator", "String that we hope to find inside the Property-Value");
  condition.entityList2 = readStringParameter(tokens, 3, "", "EntityList2", "Units that shall be checked");
}

static bool test(const CompareEntityListSizesCondition& condition, ScenarioHandler& handler) {
  const float size = static_cast<float>(handler.GetEntityListSize(condition.entityList));
  const float size2 = static_cast<float>(handler.GetEntityListSize(condition.entityList2));
  return condition.operatorText(size, size2);
}

CONDITION(CompareEntityListSizes, "EntityLists", "Compares the size of two entitylists")

}
