#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ActivateGlobalTriggerEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A trigger that is found is switched on, whatever Enable says; only ActivateTrigger can switch one off.",
  };

  Argument triggerName;
  bool enable = false;
};

static void read(ActivateGlobalTriggerEffect& effect, ParameterReader& in) {
  effect.triggerName = in.of(ParameterRole::GLOBAL_TRIGGER, 1, "Trigger_1", "Trigger Name",
                             "Mod name/path of the script file/name of the trigger");
  effect.enable = in.flag(2, false, "Enable", "Has no meaning: the trigger is always switched on");
}

static void run(const ActivateGlobalTriggerEffect& effect, ScenarioHandler& handler) {
  ScenarioHandler::SetGlobalTriggerActiv(handler.ResolveString(effect.triggerName), effect.enable);
}

EFFECT(ActivateGlobalTrigger, "TidemarkScripts", "Switches a trigger of any running script on")

}
