#include "game_plugin/scenario/shared/ComponentProperty.h"

namespace script {

struct CompareComponentPropertyToFloatVariableCondition : ComponentPropertyCondition {
  ComparisonOperator operatorText;
};

static void read(CompareComponentPropertyToFloatVariableCondition& condition, const Tokens& tokens) {
  readPropertyAddress(condition, tokens);
  condition.operatorText =
      readStringParameter(tokens, 4, "==", "Operator", "String that we hope to find inside the Property-Value");
  readTextAndListOut(condition, tokens, 5);
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
