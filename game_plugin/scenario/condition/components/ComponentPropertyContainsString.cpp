#include "game_plugin/scenario/shared/components/ComponentProperty.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ComponentPropertyContainsStringCondition : ComponentPropertyCondition {};

static void read(ComponentPropertyContainsStringCondition& condition, ParameterReader& in) {
  readPropertyAddress(condition, in);
  readComparandAndListOut(condition, in, 4, ParameterRole::TEXT);
}

static bool test(const ComponentPropertyContainsStringCondition& condition, ScenarioHandler& handler) {
  return filterByProperty(condition, handler, [&](const camp::Value& value) {
    return value.to<std::string>().find(handler.ResolveString(condition.stringToCheck)) != std::string::npos;
  });
}

CONDITION(ComponentPropertyContainsString, "Components",
          "Trys to match the string with the components current value. The component just need to contain the string. "
          "Notice that bools are represented by 0 and 1 and not by true and false")

}
