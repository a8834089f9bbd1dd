#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

#include "qsf/component/MeshAnimationComponent.h"

namespace script {

struct IsAnimationCurrentlyPlayingCondition : DefaultCondition {
  Argument entitiesToCheck;
  Argument checkedEntities;
  std::string animationName;
};

static void read(IsAnimationCurrentlyPlayingCondition& condition, const Tokens& tokens) {
  condition.entitiesToCheck =
      readStringParameter(tokens, 1, "EntityList", "EntitiesToCheck[in]", "Units which are checked");
  condition.checkedEntities = readStringParameter(tokens, 2, "EntityListOut", "CheckedEntities[out]",
                                                  "All entities which are playing the animation");
  condition.animationName =
      readStringParameter(tokens, 3, "Animationname", "Animationname (local asset name)", "Animation to look for");
}

static bool test(const IsAnimationCurrentlyPlayingCondition& condition, ScenarioHandler& handler) {
  const qsf::AssetProxy animation(condition.animationName);
  return filterIntoList(handler, condition.entitiesToCheck, condition.checkedEntities, [&](const qsf::Entity& entity) {
    const auto* component = entity.getComponent<qsf::MeshAnimationComponent>();
    return component && component->isAnimationPlaying(animation);
  });
}

CONDITION(IsAnimationCurrentlyPlaying, "Units", "True if at least one entity is playing the given animation")

}
