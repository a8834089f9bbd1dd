#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct StringVarMatchsStringCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "StringVar is a text like any other: only the form svar(name) reads a variable.",
      "An empty text is inside of every text.",
  };

  Argument stringVar;
  Argument stringToCompare;
  bool mustMatch;
};

static void read(StringVarMatchsStringCondition& condition, ParameterReader& in) {
  condition.stringVar = in.text(1, "StringVar", "StringVar", "The StringVar that shall be checked");
  condition.stringToCompare =
      in.text(2, "Compared_String", "StringToCompare", "The string against we check the stringvar");
  condition.mustMatch =
      in.flag(3, false, "MustMatch", "If false, it is enought if the compared string is anywhere inside the stringvar");
}

static bool test(const StringVarMatchsStringCondition& condition, ScenarioHandler& handler) {
  const std::string& text = handler.ResolveString(condition.stringVar);
  const std::string& part = handler.ResolveString(condition.stringToCompare);
  return condition.mustMatch ? text == part : text.find(part) != std::string::npos;
}

CONDITION(StringVarMatchsString, "StringVar", "Checks if a stringvar matchs (or contains) a given string")

}
