#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/logic/GangsterLogic.h"
#include "em5/map/EntityHelper.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/logic/GameLogicComponent.h"

namespace script {

struct SetGangsterFleeingEffect : DefaultEffect {
  Argument entityList;
  bool clearActionPlan = true;
};

static void read(SetGangsterFleeingEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "empty_list", "EntityList", "The name of the entityList, which should be affected");
  effect.clearActionPlan =
      in.flag(2, true, "Clear Action Plan", "Stops the current action and instantly doing the escape action");
}

static void run(const SetGangsterFleeingEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    const em5::EntityHelper helper(entity);
    if (!helper.isGangsterPerson() || helper.getParentEntity()) return;
    const auto* logics = entity.getComponent<qsf::GameLogicComponent>();
    auto* logic = logics ? logics->getGameLogic<em5::GangsterBaseLogic>() : nullptr;
    if (!logic) return;
    auto* actions = entity.getComponent<qsf::ActionComponent>();
    if (actions && effect.clearActionPlan) actions->clearPlan();
    logic->escape(0);
  });
}

EFFECT(SetGangsterFleeing, "Events",
       "Set an existing gangster to fleeing status. Make sure your choosen person is allready a gangster. If it isnt "
       "(or allready arrested/in building) this method will do nothing (see AddGangsterToEvent)")

}
