#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ToggleVariableValueEffect : DefaultEffect {
  Argument variable;
  Argument value1;
  Argument value2;
};

static void read(ToggleVariableValueEffect& effect, ParameterReader& in) {
  effect.variable = in.variableInOut(1, "no_variable", "Variable", "Variable that should change");
  effect.value1 = in.number(2, "0", "Value1", "Value1");
  effect.value2 = in.number(3, "1", "Value2", "Value2");
}

static void run(const ToggleVariableValueEffect& effect, ScenarioHandler& handler) {
  const float present = handler.ResolveFloat(effect.variable);
  const float value1 = handler.ResolveFloat(effect.value1);
  handler.SetFloatVariable(effect.variable, present == value1 ? handler.ResolveFloat(effect.value2) : value1);
}

EFFECT(ToggleVariableValue, "Variables",
       "Shortcout for:<br> if(Variable == Value1)<br>\tVariable = Value2; <br>else<br>Variable = Value1;")

}
