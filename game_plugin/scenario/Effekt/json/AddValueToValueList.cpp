#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct AddValueToValueListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A list that isn't named is called no_list and gets the value, without a message; one that is called no_value "
      "gets none, with a message.",
      "A list can't get the value no_value.",
  };

  Argument list;
  Argument value;
};

static void read(AddValueToValueListEffect& effect, ParameterReader& in) {
  effect.list = in.of(ParameterRole::STRING_LIST_OUT, 1, "no_list", "ValueList",
                      "Name of the string list; a value that it holds is not added again");
  effect.value = in.text(2, "no_value", "Value", "Text that is added");
}

static void run(const AddValueToValueListEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.list.text(), "no_value", "AddValueToValueListEffect::ValueListName was not found")) return;
  const std::string& value = handler.ResolveString(effect.value);
  if (isLeftAt(value, "no_value", "AddValueToValueListEffect::Value was not found")) return;
  handler.AddToStringList(effect.list, value);
}

EFFECT(AddValueToValueList, "JSON", "Adds a text to a string list, for AddValueListToRoot")

}
