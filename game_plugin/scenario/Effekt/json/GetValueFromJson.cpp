#include "game_plugin/scenario/hints/Hints.h"
#include "game_plugin/scenario/language/WordTable.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/base/Ids.h"

#include <boost/lexical_cast/try_lexical_convert.hpp>
#include <boost/property_tree/ptree.hpp>

namespace script {

using boost::property_tree::ptree;

/// What a value is read as.
enum class JsonType : unsigned char { TEXT, BOOL, ID, NUMBER };

static constexpr Word<JsonType> TYPES[] = {{"std::string", JsonType::TEXT},
                                           {"bool", JsonType::BOOL},
                                           {"uint64", JsonType::ID},
                                           {"float", JsonType::NUMBER},
                                           {"int", JsonType::NUMBER}};

struct GetValueFromJsonEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Any type but std::string, bool and uint64 is a number.",
      "A bool goes to the bool variables, where no number argument sees it.",
      "A list's values go to the list that is named like the Variable; SaveVariable has to be given all the same.",
      "A string list keeps what it holds, an entity list is emptied first.",
      "Of a list's elements that are no ids the log tells, and they are left out.",
      "A list is read as std::string or uint64; with any other type nothing happens.",
      "A single value that is missing or doesn't convert is empty, false, 0 or the uninitialised id.",
      "A list that is missing ends this tick of the script.",
  };

  Argument root;
  Argument path;
  Argument target;
  JsonType type = JsonType::NUMBER;
  bool isList = false;
};

static void read(GetValueFromJsonEffect& effect, ParameterReader& in) {
  effect.root = in.of(ParameterRole::JSON_VARIABLE_IN, 1, "no_root", "Property Tree Root", "Name of the JSON variable");
  effect.path = in.raw(2, "no_var", "Variable",
                       "Key of the value; a.b is the key b inside of a. A list's values go to the list of this name");
  effect.target = in.variableOut(3, "no_var", "SaveVariable",
                                 "Name of the variable, string variable, bool variable or entity list that gets a "
                                 "single value");
  const ParameterText type = in.words(4, "std::string", "DatatType",
                                      "What the value is read as; any other word is a number", wordsOf<TYPES>());
  effect.type = lookUp(TYPES, type).value_or(JsonType::NUMBER);
  effect.isList = in.flag(5, false, "isList", "Whether all children of the key are read, as a list");
  if (!in.isDescribing() && effect.isList && hints::isOn()) hints::noteMeant(effect.path.text());
}

static void readSingle(const GetValueFromJsonEffect& effect, const ptree& tree, ScenarioHandler& handler) {
  const std::string& path = effect.path;
  switch (effect.type) {
  case JsonType::TEXT:
    handler.SetStringVariable(effect.target, tree.get<std::string>(path, ""));
    break;
  case JsonType::BOOL:
    handler.SetBoolVariable(effect.target, tree.get<bool>(path, false));
    break;
  case JsonType::ID:
    handler.ClearEntityList(effect.target);
    handler.AddToEntityList(effect.target, tree.get<std::uint64_t>(path, qsf::UNINITIALIZED_ID));
    break;
  case JsonType::NUMBER:
    handler.SetFloatVariable(effect.target, tree.get<float>(path, 0.0f));
    break;
  }
}

static void readIds(const Argument& list, const ptree& values, ScenarioHandler& handler) {
  handler.ClearEntityList(list);
  for (const auto& [key, value] : values) {
    std::uint64_t id = 0;
    if (boost::conversion::try_lexical_convert(value.data(), id)) {
      handler.AddToEntityList(list, id);
    } else {
      logInfo(value.data());
      logInfo("Cant cast your property: uint64 from JSON. Using " + std::to_string(qsf::UNINITIALIZED_ID) + ".");
    }
  }
}

static void readList(const GetValueFromJsonEffect& effect, const ptree& tree, ScenarioHandler& handler) {
  const ptree& values = tree.get_child(effect.path.text()); // throws if it is missing, whatever the type
  if (effect.type == JsonType::ID) readIds(effect.path, values, handler);
  if (effect.type != JsonType::TEXT) return;
  handler.GetStringList(effect.path); // the list is there, also if it gets no value
  for (const auto& [key, value] : values)
    handler.AddToStringList(effect.path, value.data());
}

static void run(const GetValueFromJsonEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.root.text(), "no_root", "GetValueFromJsonEffect::RootName was not found")) return;
  if (isLeftAt(effect.path.text(), "no_var", "GetValueFromJsonEffect::Variable was not found")) return;
  if (isLeftAt(effect.target.text(), "no_var", "GetValueFromJsonEffect::SaveVariable was not found")) return;
  const ptree& tree = handler.jsonVariable(effect.root);
  if (effect.isList)
    readList(effect, tree, handler);
  else
    readSingle(effect, tree, handler);
}

EFFECT(GetValueFromJson, "JSON", "Reads a value or a list out of a JSON variable")

}
