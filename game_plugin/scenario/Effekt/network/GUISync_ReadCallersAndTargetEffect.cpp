#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/lifecycle/RunningTriggers.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct GUISync_ReadCallersAndTargetEffectEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The target list always holds one id, also when there is no target.",
      "Of two running scripts with one trigger name the first one's lists are read.",
  };

  Argument callers;
  Argument target;
  Argument player;
};

static void read(GUISync_ReadCallersAndTargetEffectEffect& effect, ParameterReader& in) {
  effect.callers = in.listOut(1, "no_list", "CallerList", "The list of callers (for example the selected units");
  effect.target = in.listOut(2, "no_list", "TargetList", "The target unit. Only the first entity is used!");
  effect.player = in.variableOut(3, "0", "PlayerId", "PlayerId which is transmitted");
}

static void run(const GUISync_ReadCallersAndTargetEffectEffect& effect, ScenarioHandler& handler,
                std::uint32_t triggerHash) {
  const auto found = findRunningTrigger(triggerHash);
  if (!found) {
    logInfo("GUISync_ReadCallersAndTargetEffect: cant find the trigger");
    return;
  }
  const ScenarioTrigger* trigger = found->trigger;
  handler.ClearEntityList(effect.callers);
  for (const std::uint64_t caller : trigger->callers())
    handler.AddToEntityList(effect.callers, caller);
  handler.getEntityListSize(effect.callers); // an out list exists afterwards, also without any caller
  handler.ClearEntityList(effect.target);
  handler.AddToEntityList(effect.target, trigger->target());
  handler.SetFloatVariable(effect.player, static_cast<float>(trigger->player()));
}

EFFECT(GUISync_ReadCallersAndTargetEffect, "Multiplayer", "Reads caller and targets which must be set in the condition")

}
