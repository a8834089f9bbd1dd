#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct ActivateTriggerEffect : DefaultEffect {
  Argument triggerName;
  bool enable = false;
};

static void read(ActivateTriggerEffect& effect, const Tokens& tokens) {
  effect.triggerName = readStringParameter(tokens, 1, "Trigger_1", "Trigger Name", "Local name of the trigger");
  effect.enable = readBoolParameter(tokens, 2, false, "Enable", "true switches the trigger on, false off");
}

static void run(const ActivateTriggerEffect& effect, ScenarioHandler& handler) {
  handler.SetTriggerActive(handler.ResolveString(effect.triggerName), effect.enable);
}

EFFECT(ActivateTrigger, "TidemarkScripts", "Switches a trigger of this script on or off")

}
