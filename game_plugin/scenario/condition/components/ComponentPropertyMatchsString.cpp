#include "game_plugin/scenario/shared/components/ComponentProperty.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ComponentPropertyMatchsStringCondition : ComponentPropertyCondition {};

static void read(ComponentPropertyMatchsStringCondition& condition, ParameterReader& in) {
  readPropertyAddress(condition, in);
  readComparandAndListOut(condition, in, 4, ParameterRole::TEXT);
}

static bool test(const ComponentPropertyMatchsStringCondition& condition, ScenarioHandler& handler) {
  return filterByProperty(condition, handler, [&](const camp::Value& value) {
    const std::string text = value.to<std::string>(); // first: what doesn't convert reads no variable
    return text == handler.ResolveString(condition.stringToCheck);
  });
}

CONDITION(ComponentPropertyMatchsString, "Components",
          "Returns true if the Components Value is exactly the value of \"StringToCheck\". Notice that bools are "
          "represented by 0 and 1 and not by true and false")

}
