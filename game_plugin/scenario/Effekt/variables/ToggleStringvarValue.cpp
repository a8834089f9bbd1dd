#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ToggleStringvarValueEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A plain name is compared itself, not what the variable holds.",
      "With svar(name) the value is compared, but what is written is a variable that is called like the whole text, "
      "svar( included.",
  };

  Argument stringVariable;
  Argument value1;
  Argument value2;
};

static void read(ToggleStringvarValueEffect& effect, ParameterReader& in) {
  effect.stringVariable = in.stringVariableInOut(1, "no_variable", "StringVar", "Variable that should change");
  effect.value1 = in.text(2, "0", "Value1", "Value1");
  effect.value2 = in.text(3, "1", "Value2", "Value2");
}

static void run(const ToggleStringvarValueEffect& effect, ScenarioHandler& handler) {
  const std::string present = handler.ResolveString(effect.stringVariable);
  const std::string value1 = handler.ResolveString(effect.value1);
  handler.SetStringVariable(effect.stringVariable.text(),
                            present == value1 ? std::string(handler.ResolveString(effect.value2)) : value1);
}

EFFECT(ToggleStringvarValue, "StringVar",
       "Shortcout for:<br> if(StringVar == Value1)<br>\tStringVar = Value2; <br>else<br>StringVar = Value1;")

}
