#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct AppendStringToStringVarEffect : DefaultEffect {
  Argument stringVariable;
  Argument appended;
};

static void read(AppendStringToStringVarEffect& effect, const Tokens& tokens) {
  effect.stringVariable =
      readStringParameter(tokens, 1, "no_StringVar", "Modified_StringVar", "StringVar which gets stuff appended");
  effect.appended = readStringParameter(tokens, 2, "no_StringVar", "AppendedString",
                                        "String that gets appended to the first Parameter");
}

/// Kept: the text goes behind the variable's name, whatever the variable held. Scripts rely on the name in front.
static void run(const AppendStringToStringVarEffect& effect, ScenarioHandler& handler) {
  const std::string& name = effect.stringVariable.text();
  handler.SetStringVariable(name, name + handler.ResolveString(effect.appended));
}

EFFECT(AppendStringToStringVar, "StringVar", "Modifies a Stringvar by Appending a string")

}
