#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SetLocalVariableGlobalEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "With svar(name) the text is copied and the local string variable stays, though the description says otherwise.",
      "With svar(name) and no global name, the name of the global variable is the global mark and the whole text, "
      "svar( included.",
  };

  Argument localVariable;
  Argument globalVariable;
};

static void read(SetLocalVariableGlobalEffect& effect, ParameterReader& in) {
  effect.localVariable = in.variableInOut(1, "no_var", "LocalVariable", "Variable, or svar(name) of a string variable");
  effect.globalVariable =
      in.variableOut(2, "no_varG", "GlobalVariable", "Global name; by default that of the local variable");
}

static std::string targetName(const SetLocalVariableGlobalEffect& effect, const ScenarioHandler& handler) {
  if (effect.globalVariable == "no_varG") return handler.globalMark() + effect.localVariable.text();
  if (effect.globalVariable.info().isGlobal) return effect.globalVariable.text();
  return handler.globalMark() + effect.globalVariable.text();
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
    // Finds none: the text still has its "svar(".
    handler.removeLocalStringVariable(local);
  } else {
    handler.SetFloatVariable(target, handler.ResolveFloat(effect.localVariable));
    handler.removeLocalVariable(local);
  }
}

EFFECT(SetLocalVariableGlobal, "Variables", "Copies a local variable to a global one and deletes the local variable")

}
