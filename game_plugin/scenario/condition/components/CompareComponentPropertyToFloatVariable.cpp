#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/shared/components/ComponentProperty.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct CompareComponentPropertyToFloatVariableCondition : ComponentPropertyCondition {
  ComparisonOperator operatorText;
};

static void read(CompareComponentPropertyToFloatVariableCondition& condition, ParameterReader& in) {
  readPropertyAddress(condition, in);
  condition.operatorText = in.comparison(4, "==", "Operator", "String that we hope to find inside the Property-Value");
  readComparandAndListOut(condition, in, 5, ParameterRole::NUMBER);
}

static bool test(const CompareComponentPropertyToFloatVariableCondition& condition, ScenarioHandler& handler) {
  return filterByProperty(condition, handler, [&](const camp::Value& value) {
    const float number = value.to<float>(); // first: what doesn't convert reads no variable
    return condition.operatorText(number, handler.ResolveFloat(condition.stringToCheck));
  });
}

CONDITION(CompareComponentPropertyToFloatVariable, "Components",
          "Returns true if the comparison was succesfull for at least one entity")

}
