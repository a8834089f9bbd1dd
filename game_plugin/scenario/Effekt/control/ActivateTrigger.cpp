#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ActivateTriggerEffect : DefaultEffect {
  Argument triggerName;
  bool enable = false;
};

static void read(ActivateTriggerEffect& effect, ParameterReader& in) {
  effect.triggerName = in.trigger(1, "Trigger_1", "Trigger Name", "Local name of the trigger");
  effect.enable = in.flag(2, false, "Enable", "true switches the trigger on, false off");
}

static void run(const ActivateTriggerEffect& effect, ScenarioHandler& handler) {
  handler.SetTriggerActive(handler.ResolveString(effect.triggerName), effect.enable);
}

EFFECT(ActivateTrigger, "TidemarkScripts", "Switches a trigger of this script on or off")

}
