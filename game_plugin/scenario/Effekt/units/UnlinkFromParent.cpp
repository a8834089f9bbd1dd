#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"

#include "em5/map/EntityHelper.h"

namespace script {

struct UnlinkFromParentEffect : DefaultEffect {
  Argument entityList;
};

static void read(UnlinkFromParentEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities to unlink");
}

static void run(const UnlinkFromParentEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [](qsf::Entity& entity) {
    const em5::EntityHelper helper(entity);
    if (helper.getParentEntity()) helper.unlinkFromParent();
  });
}

EFFECT(UnlinkFromParent, "Units", "Unlinks entities from their parents. They stay where they are")

}
