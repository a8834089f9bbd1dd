#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct ToggleStringvarValueEffect : DefaultEffect {
  Argument stringVariable;
  Argument value1;
  Argument value2;
};

static void read(ToggleStringvarValueEffect& effect, const Tokens& tokens) {
  effect.stringVariable = readStringParameter(tokens, 1, "no_variable", "StringVar", "Variable that should change");
  effect.value1 = readStringParameter(tokens, 2, "0", "Value1", "Value1");
  effect.value2 = readStringParameter(tokens, 3, "1", "Value2", "Value2");
}

/// Kept: the variable is read only if it is written `svar(name)`, otherwise its name is compared; what is written is in
/// both forms the variable that is named like the whole text.
static void run(const ToggleStringvarValueEffect& effect, ScenarioHandler& handler) {
  const std::string present = handler.ResolveString(effect.stringVariable);
  const std::string value1 = handler.ResolveString(effect.value1);
  handler.SetStringVariable(effect.stringVariable.text(),
                            present == value1 ? std::string(handler.ResolveString(effect.value2)) : value1);
}

EFFECT(ToggleStringvarValue, "StringVar",
       "Shortcout for:<br> if(StringVar == Value1)<br>\tStringVar = Value2; <br>else<br>StringVar = Value1;")

}
