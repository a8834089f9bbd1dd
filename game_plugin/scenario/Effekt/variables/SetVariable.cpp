#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SetVariableEffect : DefaultEffect {
  Argument variable;
  Argument value;
};

static void read(SetVariableEffect& effect, ParameterReader& in) {
  effect.variable = in.variableOut(1, "var", "Variable", "Name of the variable to set");
  effect.value = in.number(2, "0", "value", "Number, or name of another variable");
}

static void run(const SetVariableEffect& effect, ScenarioHandler& handler) {
  handler.SetFloatVariable(effect.variable, handler.ResolveFloat(effect.value));
}

EFFECT(SetVariable, "Variables", "Sets a variable to a number")

}
