#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"

namespace script {

struct ClearActionPlanEffect : DefaultEffect {
  Argument entityList;
};

static void read(ClearActionPlanEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that end what they do");
}

static void run(const ClearActionPlanEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "ClearActionPlanEffect::EntityList not found")) return;
  forEachEntity(handler, effect.entityList, [](const qsf::Entity& entity) {
    if (auto* actions = entity.getComponent<qsf::ActionComponent>()) actions->clearPlan();
  });
}

EFFECT(ClearActionPlan, "Actions", "Takes all actions off the plans of entities")

}
