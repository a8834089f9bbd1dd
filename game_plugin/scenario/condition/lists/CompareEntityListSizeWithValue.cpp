#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct CompareEntityListSizeWithValueCondition : DefaultCondition {
  Argument entityList;
  Argument value;
  ComparisonOperator operatorText;
};

static void read(CompareEntityListSizeWithValueCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "", "EntityList", "Units that shall be checked");
  condition.operatorText = in.comparison(2, "==", "Operator", "String that we hope to find inside the Property-Value");
  condition.value = in.number(3, "", "Value", "Value which we compare the Unitlist size to - can also hold a variable");
}

static bool test(const CompareEntityListSizeWithValueCondition& condition, ScenarioHandler& handler) {
  const float size = static_cast<float>(handler.getEntityListSize(condition.entityList));
  return condition.operatorText(size, handler.ResolveFloat(condition.value));
}

CONDITION(CompareEntityListSizeWithValue, "EntityLists", "Compares the size of one entitylist versus a value")

}
