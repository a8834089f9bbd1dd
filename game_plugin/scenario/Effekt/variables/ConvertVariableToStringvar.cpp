#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/language/TextConversion.h"

namespace script {

struct ConvertVariableToStringvarEffect : DefaultEffect {
  Argument variable;
  Argument stringVariable;
};

static void read(ConvertVariableToStringvarEffect& effect, const Tokens& tokens) {
  effect.variable = readStringParameter(tokens, 1, "no_variable", "Variable", "Variable from which we read");
  effect.stringVariable = readStringParameter(tokens, 2, "no_StringVar", "StringVar", "StringVar which we want to set");
}

static void run(const ConvertVariableToStringvarEffect& effect, ScenarioHandler& handler) {
  handler.SetStringVariable(effect.stringVariable, floatToText(handler.ResolveFloat(effect.variable)));
}

EFFECT(ConvertVariableToStringvar, "StringVar",
       "Converts a Variable (float) to a Stringvar (string). This makes it possible to use Variables for setting "
       "Component Properties after Converting them")

}
