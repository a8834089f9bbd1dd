#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct CompareValuesCondition : DefaultCondition {
  ComparisonOperator operatorText; // first, where the base leaves a byte free: there are thousands of these records
  Argument value1;
  Argument value2;
};

static void read(CompareValuesCondition& condition, ParameterReader& in) {
  condition.value1 = in.number(1, "5", "Value1", "");
  condition.operatorText = in.comparison(2, "==", "Operator", "(<, <=, ==, >=, >)");
  condition.value2 = in.number(3, "5", "Value2", "");
}

static bool test(const CompareValuesCondition& condition, ScenarioHandler& handler) {
  // The second value first: both may be names that come to life here, in this order.
  const float value2 = handler.ResolveFloat(condition.value2);
  const float value1 = handler.ResolveFloat(condition.value1);
  return condition.operatorText(value1, value2);
}

CONDITION(CompareValues, "General", "Compares two values with the given Operator e.g. Value1 >= Value2")

}
