#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"

namespace script {

struct RemoveActionEffect : DefaultEffect {
  Argument entityList;
  Argument actionName;
};

static void read(RemoveActionEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that stop doing it");
  effect.actionName = in.of(ParameterRole::ACTION, 2, "no_action", "ActionName", "Class name, like em5::MoveAction");
}

static void run(const RemoveActionEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "RemoveActionEffect::EntityList not found")) return;
  const std::string& actionName = handler.ResolveString(effect.actionName);
  if (isLeftAt(actionName, "no_action", "RemoveActionEffect::ActionName not found")) return;
  const qsf::StringHash typeId(actionName);
  bool found = false;
  forEachEntity(handler, effect.entityList, [&](const qsf::Entity& entity) {
    auto* component = entity.getComponent<qsf::ActionComponent>();
    if (!component) return;
    const std::vector<qsf::Action*> actions = component->getPlan().getActions(); // removing changes the plan's own
    for (const qsf::Action* action : actions) {
      if (action->getTypeId() != typeId) continue;
      component->removeAction(action);
      found = true;
    }
  });
  if (!found && hints::isOn()) hintUnknownAction(actionName);
}

EFFECT(RemoveAction, "Actions", "Takes all actions of a class off the plans of entities")

}
