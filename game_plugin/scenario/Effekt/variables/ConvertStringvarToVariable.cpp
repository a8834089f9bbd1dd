#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ConvertStringvarToVariableEffect : DefaultEffect {
  Argument variable;
  Argument stringVariable;
};

static void read(ConvertStringvarToVariableEffect& effect, ParameterReader& in) {
  effect.variable = in.variableOut(1, "no_variable", "Variable", "Variable which we want to set");
  effect.stringVariable = in.text(2, "no_StringVar", "StringVar", "StringVar from which we read");
}

static void run(const ConvertStringvarToVariableEffect& effect, ScenarioHandler& handler) {
  const std::string& text = handler.ResolveString(effect.stringVariable);
  float value = 0;
  if (textToFloat(text, value))
    handler.SetFloatVariable(effect.variable, value);
  else
    logInfo("Cant set the variable " + effect.variable.text() + "to the value " + text +
            " because it is not convertable to the type \"float\"");
}

EFFECT(ConvertStringvarToVariable, "Variables",
       "Converts a String/StringVar to a Variable. Will thow an error in case of failure")

}
