#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct SetStringVariableToValueEffect : DefaultEffect {
  Argument variable;
  Argument value;
};

static void read(SetStringVariableToValueEffect& effect, const Tokens& tokens) {
  effect.variable = readStringParameter(tokens, 1, "no_var", "Variable", "Name of the string variable to set");
  effect.value = readStringParameter(tokens, 2, "", "Value", "Text, or svar(name) of another string variable");
}

static void run(const SetStringVariableToValueEffect& effect, ScenarioHandler& handler) {
  if (effect.variable == "no_var")
    logInfo("SetStringVariableToValueEffect::Variable was not found");
  else
    handler.SetStringVariable(effect.variable, handler.ResolveString(effect.value));
}

EFFECT(SetStringVariableToValue, "StringVar", "Sets a string variable to a text")

}
