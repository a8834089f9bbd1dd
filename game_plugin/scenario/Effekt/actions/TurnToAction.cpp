#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"

#include "em5/action/TurnToAction.h"

namespace script {

struct TurnToActionEffect : DefaultEffect {
  Argument callers;
  Argument targets;
  bool rotateReverse = false;
};

static void read(TurnToActionEffect& effect, ParameterReader& in) {
  effect.callers = in.list(1, "no_list", "EntityList Caller", "Entities that turn");
  effect.targets = in.list(2, "no_list", "EntityList Target", "Entity to turn to; of a list the first");
  effect.rotateReverse = in.flag(3, false, "Rotate Reverse", "Turns the back to the target");
}

static void run(const TurnToActionEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintLiteralIds(effect.targets);
  const EntityIds targets = handler.ResolveEntityList(effect.targets);
  const qsf::Entity* target = targets.empty() ? nullptr : findEntity(targets.front());
  if (!target) return;
  forEachEntity(handler, effect.callers, [&](qsf::Entity& caller) {
    actionsOf(caller)
        .pushAction<em5::TurnToAction>(100, qsf::action::APPEND_TO_BACK)
        .init(*target, effect.rotateReverse, 270.0f);
  });
}

EFFECT(TurnToAction, "Actions", "Turns entities on the spot until they face another one")

}
