#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct SetVariableEffect : DefaultEffect {
  Argument variable;
  Argument value;
};

static void read(SetVariableEffect& effect, const Tokens& tokens) {
  effect.variable = readStringParameter(tokens, 1, "var", "Variable", "Name of the variable to set");
  effect.value = readStringParameter(tokens, 2, "0", "value", "Number, or name of another variable");
}

static void run(const SetVariableEffect& effect, ScenarioHandler& handler) {
  handler.SetFloatVariable(effect.variable, handler.ResolveFloat(effect.value));
}

EFFECT(SetVariable, "Variables", "Sets a variable to a number")

}
