#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/json/JsonPath.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct AddValueToRootEffect : DefaultEffect {
  Argument root;
  Argument path;
  Argument value;
};

static void read(AddValueToRootEffect& effect, ParameterReader& in) {
  effect.root = in.of(ParameterRole::JSON_VARIABLE_IN_OUT, 1, "no_root", "Property Tree Root",
                      "Name of the JSON variable that gets the value");
  effect.path = in.raw(2, "no_var", "Variable",
                       "Key of the value; a.b is the key b inside of a. A value that is there is replaced");
  effect.value = in.text(3, "", "Value", "Text that is stored");
}

static void run(const AddValueToRootEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.root.text(), "no_root", "AddValueToRootEffect::RootName was not found")) return;
  if (isLeftAt(effect.path.text(), "no_var", "AddValueToRootEffect::VaraibleName was not found")) return;
  const std::string& value = handler.ResolveString(effect.value);
  putJsonValue(handler.jsonVariable(effect.root), effect.path, value);
}

EFFECT(AddValueToRoot, "JSON", "Sets a value in a JSON variable")

}
