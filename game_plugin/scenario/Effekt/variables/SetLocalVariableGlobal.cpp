#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct SetLocalVariableGlobalEffect : DefaultEffect {
  Argument localVariable;
  Argument globalVariable;
};

static void read(SetLocalVariableGlobalEffect& effect, const Tokens& tokens) {
  effect.localVariable =
      readStringParameter(tokens, 1, "no_var", "LocalVariable", "Variable, or svar(name) of a string variable");
  effect.globalVariable =
      readStringParameter(tokens, 2, "no_varG", "GlobalVariable", "Global name; by default that of the local variable");
}

static std::string targetName(const SetLocalVariableGlobalEffect& effect, const ScenarioHandler& handler) {
  if (effect.globalVariable == "no_varG") return handler.GlobalMark() + effect.localVariable.text();
  if (effect.globalVariable.info().isGlobal) return effect.globalVariable.text();
  return handler.GlobalMark() + effect.globalVariable.text();
}

static void run(const SetLocalVariableGlobalEffect& effect, ScenarioHandler& handler) {
  const std::string& local = effect.localVariable.text();
  if (local == "no_var") {
    logError("SetLocalVariableGlobalEffect::LocalVariable not found");
    return;
  }
  const std::string target = targetName(effect, handler);
  if (effect.localVariable.info().isVariableReference) {
    handler.SetStringVariable(target, handler.ResolveString(effect.localVariable));
    // Kept: the raw text with its "svar(" matches no variable, so the local one stays; scripts go on reading it.
    handler.RemoveLocalStringVariable(local);
  } else {
    handler.SetFloatVariable(target, handler.ResolveFloat(effect.localVariable));
    handler.RemoveLocalVariable(local);
  }
}

EFFECT(SetLocalVariableGlobal, "Variables", "Copies a local variable to a global one and deletes the local variable")

}
