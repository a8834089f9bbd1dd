#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/json/JsonPath.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <boost/property_tree/ptree.hpp>

namespace script {

struct AddValueListToRootEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A list that is there stays: run twice, the key stands there twice, and the first list is the one that is read.",
      "A string list without values becomes an empty text.",
  };

  Argument root;
  Argument path;
  Argument values;
};

static void read(AddValueListToRootEffect& effect, ParameterReader& in) {
  effect.root = in.of(ParameterRole::JSON_VARIABLE_IN_OUT, 1, "no_root", "Property Tree Root",
                      "Name of the JSON variable that gets the list");
  effect.path = in.raw(2, "no_var", "Variable", "Key of the list; a.b is the key b inside of a");
  effect.values = in.of(ParameterRole::STRING_LIST_IN, 3, "no_list", "ValueList",
                        "Name of the string list, which AddValueToValueList fills");
}

static void run(const AddValueListToRootEffect& effect, ScenarioHandler& handler) {
  using boost::property_tree::ptree;
  if (isLeftAt(effect.root.text(), "no_root", "AddValueListToRootEffect::RootName was not found")) return;
  if (isLeftAt(effect.path.text(), "no_var", "AddValueListToRootEffect::VariableName was not found")) return;
  if (isLeftAt(effect.values.text(), "no_list", "AddValueListToRootEffect::ValueList was not found")) return;
  ptree& tree = handler.jsonVariable(effect.root);
  ptree list;
  for (const std::string& value : handler.GetStringList(effect.values))
    list.push_back({"", ptree(value)}); // children without a key are an array
  addJsonChild(tree, effect.path, list);
}

EFFECT(AddValueListToRoot, "JSON", "Adds the values of a string list to a JSON variable, as an array")

}
