#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"

#include "qsf/action/WaitAction.h"

namespace script {

struct TriggerWaitActionEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A plan whose current action has a priority of 200 or more is not cleared.",
  };

  Argument entityList;
  Argument waitTime;
  Argument insertionMode;
  Argument priority;
  bool clearActionPlan = false;
};

static void read(TriggerWaitActionEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that wait");
  effect.waitTime = in.number(2, "3", "Waittime", "Seconds");
  effect.insertionMode =
      in.words(3, "APPEND_TO_BACK", "Insertion Mode", "Place of the action in their plans", planModeWords());
  effect.priority = in.number(4, "200", "Priority", "Priority of the action");
  effect.clearActionPlan = in.flag(5, false, "Clear Action Plan",
                                   "Clears their plans first, unless they do something "
                                   "of priority 200 or more");
}

static void run(const TriggerWaitActionEffect& effect, ScenarioHandler& handler) {
  constexpr unsigned int LEAST_PROTECTED_PRIORITY = 200;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    qsf::ActionComponent& actions = actionsOf(entity);
    const bool isProtected = actions.getCurrentAction() && actions.getCurrentPriority() >= LEAST_PROTECTED_PRIORITY;
    if (effect.clearActionPlan && !isProtected) actions.clearPlan();
    const qsf::Time waitTime = resolveTime(handler, effect.waitTime);
    actions
        .pushAction<qsf::WaitAction>(resolvePriority(handler, effect.priority), insertionModeOf(effect.insertionMode))
        .init(waitTime);
  });
}

EFFECT(TriggerWaitAction, "Actions", "Lets entities wait")

}
