#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SetStringVariableToValueEffect : DefaultEffect {
  Argument variable;
  Argument value;
};

static void read(SetStringVariableToValueEffect& effect, ParameterReader& in) {
  effect.variable = in.stringVariableOut(1, "no_var", "Variable", "Name of the string variable to set");
  effect.value = in.text(2, "", "Value", "Text, or svar(name) of another string variable");
}

static void run(const SetStringVariableToValueEffect& effect, ScenarioHandler& handler) {
  if (effect.variable == "no_var")
    logInfo("SetStringVariableToValueEffect::Variable was not found");
  else
    handler.SetStringVariable(effect.variable, handler.ResolveString(effect.value));
}

EFFECT(SetStringVariableToValue, "StringVar", "Sets a string variable to a text")

}
