#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"

#include "em5/action/PlayAnimationAction.h"
#include "qsf/asset/AssetProxy.h"

namespace script {

struct PlayAnimationEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The plans are cleared in any case.",
      "An animation that doesn't exist is logged, and its action stands in the plans all the same.",
  };

  Argument entityList;
  Argument animation;
  bool waitForFinish = false;
  bool loop = false;
  bool reverse = false;
  Argument blendTime;
};

static void read(PlayAnimationEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that play");
  effect.animation =
      in.of(ParameterRole::ANIMATION, 2, "no_animation", "Animation", "Local asset name, like em5/animation/test/wave");
  effect.waitForFinish = in.flag(3, false, "waitForFinish", "The action lasts as long as the animation");
  effect.loop = in.flag(4, false, "Loop", "Plays again and again");
  effect.reverse = in.flag(5, false, "Reverse", "Plays from end to start");
  effect.blendTime = in.number(6, "0", "BlendTime", "Seconds of blending");
}

static void run(const PlayAnimationEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "PlayAnimationEffect::EntityList was not found")) return;
  const std::string animation = handler.ResolveString(effect.animation);
  if (isLeftAt(animation, "no_animation", "PlayAnimationEffect::Animation was not found")) return;
  if (!qsf::AssetProxy(animation).getAsset()) {
    logError("AssetProxy is nullptr");
    if (hints::isOn()) hintMissingAsset(animation);
  }
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    qsf::ActionComponent& actions = actionsOf(entity);
    actions.clearPlan();
    const qsf::Time blendTime = resolveTime(handler, effect.blendTime);
    actions.pushAction<em5::PlayAnimationAction>(200, qsf::action::APPEND_TO_BACK)
        .init(animation, effect.waitForFinish, effect.loop, effect.reverse, blendTime, std::nullopt);
  });
}

EFFECT(PlayAnimation, "Actions", "Lets entities play an animation")

}
