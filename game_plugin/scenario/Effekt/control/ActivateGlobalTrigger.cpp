#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct ActivateGlobalTriggerEffect : DefaultEffect {
  Argument triggerName;
  bool enable = false;
};

static void read(ActivateGlobalTriggerEffect& effect, const Tokens& tokens) {
  effect.triggerName = readStringParameter(tokens, 1, "Trigger_1", "Trigger Name",
                                           "Mod name/path of the script file/name of the trigger");
  effect.enable = readBoolParameter(tokens, 2, false, "Enable", "Has no meaning: the trigger is always switched on");
}

static void run(const ActivateGlobalTriggerEffect& effect, ScenarioHandler& handler) {
  // Kept: a trigger found is switched on, whatever the flag says; scripts rely on it.
  ScenarioHandler::SetGlobalTriggerActiv(handler.ResolveString(effect.triggerName), effect.enable);
}

EFFECT(ActivateGlobalTrigger, "TidemarkScripts", "Switches a trigger of any running script on")

}
