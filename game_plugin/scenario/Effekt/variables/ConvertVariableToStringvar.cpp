#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ConvertVariableToStringvarEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The text has six significant digits: 1234567 becomes 1.23457e+06.",
  };

  Argument variable;
  Argument stringVariable;
};

static void read(ConvertVariableToStringvarEffect& effect, ParameterReader& in) {
  effect.variable = in.number(1, "no_variable", "Variable", "Variable from which we read");
  effect.stringVariable = in.stringVariableOut(2, "no_StringVar", "StringVar", "StringVar which we want to set");
}

static void run(const ConvertVariableToStringvarEffect& effect, ScenarioHandler& handler) {
  handler.SetStringVariable(effect.stringVariable, floatToText(handler.ResolveFloat(effect.variable)));
}

EFFECT(ConvertVariableToStringvar, "StringVar",
       "Converts a Variable (float) to a Stringvar (string). This makes it possible to use Variables for setting "
       "Component Properties after Converting them")

}
