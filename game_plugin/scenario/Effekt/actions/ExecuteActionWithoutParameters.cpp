#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/world/RememberedHash.h"

namespace script {

struct ExecuteActionWithoutParametersEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "An action that nobody knows ends the script's tick; a plan that was to be cleared is clear by then.",
  };

  Argument entityList;
  Argument actionName;
  Argument insertionMode;
  int priority = 100;
  bool clearListBefore = true;
};

static void read(ExecuteActionWithoutParametersEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that act");
  effect.actionName =
      in.of(ParameterRole::ACTION, 2, "no_action", "ActionName", "Class name, like em5::FullBrakeAction");
  effect.insertionMode =
      in.words(3, "APPEND_TO_BACK", "InsertionMode", "Place of the action in their plans", planModeWords());
  effect.priority = in.integer(4, 100, "Priority", "Priority of the action");
  effect.clearListBefore = in.flag(5, true, "ClearListBefore", "Clears their plans first");
}

static void run(const ExecuteActionWithoutParametersEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "ExecuteActionWithoutParametersEffect::EntityList not found"))
    return;
  const std::string actionName = handler.ResolveString(effect.actionName);
  if (isLeftAt(actionName, "no_action", "ExecuteActionWithoutParametersEffect::ActionName not found")) return;
  if (hints::isOn()) hintUnknownAction(actionName);
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    qsf::ActionComponent& actions = actionsOf(entity);
    if (effect.clearListBefore) actions.clearPlan();
    actions.pushActionById(rememberedHash(actionName), static_cast<unsigned int>(effect.priority),
                           insertionModeOf(effect.insertionMode));
  });
}

EFFECT(ExecuteActionWithoutParameters, "Actions", "Starts an action of any class, also of another plug-in's")

}
