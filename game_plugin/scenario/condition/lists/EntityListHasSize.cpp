#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct EntityListHasSizeCondition : DefaultCondition {
  Argument entityList;
  ComparisonOperator operatorText;
  Argument compareValue;
};

static void read(EntityListHasSizeCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "EntitiesToCheck", "EntityList", "EntityList which should get it's size count.");
  condition.operatorText = in.comparison(2, "==", "Operator", "(<,<=,==,>=,>)");
  condition.compareValue = in.number(3, "1", "CompareValue", "The size is compared to this value");
}

static bool test(const EntityListHasSizeCondition& condition, ScenarioHandler& handler) {
  const float size = static_cast<float>(handler.getEntityListSize(condition.entityList));
  return condition.operatorText(size, handler.ResolveFloat(condition.compareValue));
}

CONDITION(EntityListHasSize, "General", "True if Entitylist has the given size compared to the given value")

}
