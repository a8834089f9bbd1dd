#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct AppendStringToStringVarEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The text goes behind the variable's name, not behind its value: appending b to x leaves xb, whatever x held.",
  };

  Argument stringVariable;
  Argument appended;
};

static void read(AppendStringToStringVarEffect& effect, ParameterReader& in) {
  effect.stringVariable =
      in.stringVariableOut(1, "no_StringVar", "Modified_StringVar", "StringVar which gets stuff appended");
  effect.appended = in.text(2, "no_StringVar", "AppendedString", "String that gets appended to the first Parameter");
}

static void run(const AppendStringToStringVarEffect& effect, ScenarioHandler& handler) {
  const std::string& name = effect.stringVariable.text();
  handler.SetStringVariable(name, name + handler.ResolveString(effect.appended));
}

EFFECT(AppendStringToStringVar, "StringVar", "Modifies a Stringvar by Appending a string")

}
