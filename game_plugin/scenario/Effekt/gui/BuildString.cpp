#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <algorithm>
#include <sstream>

namespace script {

namespace {

/// A text that is built of itself doubles in each tick; here it ends.
constexpr std::size_t LONGEST_TEXT = 1'000'000;

template <class Value> const Value* findValue(const Store<Value>& store, const std::string& name) {
  const std::size_t index = store.find(name);
  return index == store.NOT_FOUND ? nullptr : &store.value(index);
}

std::string joinedIds(const EntityList& list) {
  std::string text;
  for (const std::uint64_t id : list.ids())
    text += (text.empty() ? "" : "/") + std::to_string(id);
  return text;
}

/// The value of the first thing of that name, or the text itself. Nothing comes to life by being looked for.
void append(std::ostringstream& text, const std::string& token, const ScenarioHandler& handler) {
  const GlobalStores& global = handler.getGlobalStores();
  if (const float* number = findValue(handler.variables, token))
    text << *number;
  else if (const std::string* string = findValue(handler.stringVariables, token))
    text << *string;
  else if (const bool* flag = findValue(handler.boolVariables, token))
    text << *flag;
  else if (const EntityList* list = findValue(handler.entityLists, token))
    text << joinedIds(*list);
  else if (const float* globalNumber = findValue(global.variables, token))
    text << *globalNumber;
  else if (const std::string* globalString = findValue(global.stringVariables, token))
    text << *globalString;
  else
    text << token;
}

}

struct BuildStringEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The text empty ends the strings: it and all behind it are left out.",
      "A string that is the name of several things stands for the first of variable, string variable, bool variable, "
      "list, global variable, global string variable.",
      "A global list isn't looked for: its name stands for itself.",
  };

  Argument variableName;
  std::span<const Argument> strings;
};

static void read(BuildStringEffect& effect, ParameterReader& in) {
  effect.variableName =
      in.stringVariableOut(1, "no_var", "VariableName", "Name of the string variable which gets the whole text");
  std::vector<Argument> strings;
  for (int i = 2;; ++i) {
    const ParameterText string =
        in.of(ParameterRole::NAME_OR_TEXT, i, "empty", "String",
              "Name of a variable, string variable, bool variable or list, or the text itself. As many as you like");
    if (string == "empty") break;
    strings.emplace_back(string);
  }
  effect.strings = in.keep(strings);
}

static void run(const BuildStringEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.variableName.text(), "no_var", "BuildStringEffect::VariableName was not found")) return;
  std::ostringstream text;
  for (const Argument& string : effect.strings) {
    append(text, string, handler);
    if (static_cast<std::size_t>(text.tellp()) <= LONGEST_TEXT) continue;
    logError("BuildString: the text would have more than " + std::to_string(LONGEST_TEXT) + " characters; " +
             effect.variableName.text() + " stays as it was");
    return;
  }
  logInfo("Build string: " + text.str());
  handler.SetStringVariable(effect.variableName, text.str());
}

EFFECT(BuildString, "StringVar",
       "Builds a string variable out of an endless number of strings, string variables and float variables")

}
