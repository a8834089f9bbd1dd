#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/asset/AssetProxy.h"
#include "qsf/component/MeshAnimationComponent.h"

namespace script {

struct IsAnimationCurrentlyPlayingCondition : DefaultCondition {
  Argument entitiesToCheck;
  Argument checkedEntities;
  Argument animationName;
};

static void read(IsAnimationCurrentlyPlayingCondition& condition, ParameterReader& in) {
  condition.entitiesToCheck = in.list(1, "EntityList", "EntitiesToCheck[in]", "Units which are checked");
  condition.checkedEntities =
      in.listOut(2, "EntityListOut", "CheckedEntities[out]", "All entities which are playing the animation");
  condition.animationName =
      in.of(ParameterRole::ANIMATION, 3, "Animationname", "Animationname (local asset name)", "Animation to look for");
}

static bool test(const IsAnimationCurrentlyPlayingCondition& condition, ScenarioHandler& handler) {
  const qsf::AssetProxy animation(condition.animationName.text());
  if (hints::isOn() && !animation.getAsset()) hintMissingAsset(condition.animationName);
  return filterIntoList(handler, condition.entitiesToCheck, condition.checkedEntities, [&](const qsf::Entity& entity) {
    const auto* component = entity.getComponent<qsf::MeshAnimationComponent>();
    return component && component->isAnimationPlaying(animation);
  });
}

CONDITION(IsAnimationCurrentlyPlaying, "Units", "True if at least one entity is playing the given animation")

}
