#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "qsf/component/MeshAnimationComponent.h"

namespace script {

struct PlayAnimationOnClientEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Entities behind an id without an entity don't play.",
  };

  Argument entityList;
  Argument animation;
  bool reverse = false;
  bool looped = false;
  Argument blendTime;
};

static void read(PlayAnimationOnClientEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that play");
  effect.animation = in.of(ParameterRole::ANIMATION, 2, "Animationname", "LocalAssetNameofTheAnimation",
                           "Local asset name, as it stands in the script");
  effect.reverse = in.flag(3, false, "Play Reverse", "Plays from end to start");
  effect.looped = in.flag(4, false, "Play Looped", "Plays again and again");
  effect.blendTime = in.number(5, "0", "Blend Time", "Seconds of blending; none for 0 and less");
}

static void run(const PlayAnimationOnClientEffect& effect, ScenarioHandler& handler) {
  const qsf::AssetProxy animation(effect.animation.text());
  if (hints::isOn()) {
    hintLiteralIds(effect.entityList);
    if (!animation.getAsset()) hintMissingAsset(effect.animation);
  }
  for (const std::uint64_t id : handler.ResolveEntityList(effect.entityList)) {
    qsf::Entity* entity = findEntity(id);
    if (!entity) return;
    auto* component = entity->getOrCreateComponent<qsf::MeshAnimationComponent>();
    const float seconds = handler.ResolveFloat(effect.blendTime);
    if (seconds <= 0)
      component->playAnimation(animation, effect.looped, effect.reverse, 1);
    else
      component->blendToAnimation(animation, effect.looped, qsf::Time::fromSeconds(static_cast<double>(seconds)),
                                  effect.reverse, 0, 1);
  }
}

EFFECT(PlayAnimationOnClient, "Multiplayer",
       "Plays an animation on entities at once, past their plans: for the clients of a multiplayer game")

}
