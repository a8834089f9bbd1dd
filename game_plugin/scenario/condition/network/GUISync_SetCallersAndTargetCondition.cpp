#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/hints/Hints.h"
#include "game_plugin/scenario/lifecycle/RunningTriggers.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/LocalPlayer.h"

#include "qsf/Qsf.h"
#include "qsf/map/Map.h"

namespace script {

struct GUISync_SetCallersAndTargetConditionCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "An empty target list leaves the target that the trigger had before; it is sent again.",
      "What a client sends is what the trigger held when its turn came, so these lists travel with its next hit.",
      "In an If block there is no trigger whose lists could be set; it is false there.",
  };

  Argument callers;
  Argument target;
};

static void read(GUISync_SetCallersAndTargetConditionCondition& condition, ParameterReader& in) {
  condition.callers = in.list(1, "no_list", "CallerList", "The list of callers (for example the selected units");
  condition.target = in.list(2, "no_list", "TargetList", "The target unit. Only the first entity is used!");
}

static bool test(const GUISync_SetCallersAndTargetConditionCondition& condition, ScenarioHandler& handler,
                 const Evaluation& evaluation) {
  const auto found = evaluation.trigger ? findRunningTrigger(evaluation.trigger->globalNameHash()) : std::nullopt;
  if (!found) {
    logInfo("GUISync_SetCallersAndTargetCondition: was not able to find and modify your trigger");
    return false;
  }
  ScenarioTrigger* trigger = found->trigger;
  if (hints::isOn() && trigger->program->multiplayerMode == 1 && !trigger->looped && isLocalPlayerClient())
    hints::tell(HintKind::NETWORK, "these lists travel with the trigger's next hit, and it isn't looped");
  TriggerCall& call = trigger->makeCall();
  const EntityIds callers = handler.ResolveEntityList(condition.callers);
  call.callers.assign(callers.begin(), callers.end());
  const EntityIds targets = handler.ResolveEntityList(condition.target);
  if (targets.empty()) return true;
  const bool exists = qsf::Qsf::instance()->getMainMap().getEntityById(*targets.begin()) != nullptr;
  call.target = exists ? *targets.begin() : qsf::UNINITIALIZED_ID;
  return true;
}

CONDITION(GUISync_SetCallersAndTargetCondition, "Multiplayer",
          "A condition which synchronizes two lists with the host. This is only usefull when having the trigger in the "
          "GUI-Sync-Mode")

}
