#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct EntityListHasSizeCondition : DefaultCondition {
  Argument entityList;
  ComparisonOperator operatorText;
  Argument compareValue;
};

static void read(EntityListHasSizeCondition& condition, const Tokens& tokens) {
  condition.entityList =
      readStringParameter(tokens, 1, "EntitiesToCheck", "EntityList", "EntityList which should get it's size count.");
  condition.operatorText = readStringParameter(tokens, 2, "==", "Operator", "(<,<=,==,>=,>)");
  condition.compareValue = readStringParameter(tokens, 3, "1", "CompareValue", "The size is compared to this value");
}

static bool test(const EntityListHasSizeCondition& condition, ScenarioHandler& handler) {
  const float size = static_cast<float>(handler.GetEntityListSize(condition.entityList));
  return condition.operatorText(size, handler.ResolveFloat(condition.compareValue));
}

CONDITION(EntityListHasSize, "General", "True if Entitylist has the given size compared to the given value")

}
