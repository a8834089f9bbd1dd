#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/Placeholder.h"

#include "em5/component/FadeEffectComponent.h"

namespace script {

struct FadeInOutEffect : DefaultEffect {
  Argument entityList;
  bool fadeIn = true;
  Argument time;
  bool deleteOwner = false;
};

static void read(FadeInOutEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Entities to fade");
  effect.fadeIn = readBoolParameter(tokens, 2, true, "FadeIn", "true fades in, false fades out");
  effect.time = readStringParameter(tokens, 3, "1.0", "Time", "Seconds that it takes");
  effect.deleteOwner = readBoolParameter(tokens, 4, false, "DeleteOwner", "Destroys the entities at the end");
}

static void run(const FadeInOutEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "FadeInOutEffect::EntityList was not found")) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    const float seconds = handler.ResolveFloat(effect.time);
    auto* fade = entity.getOrCreateComponent<em5::FadeEffectComponent>();
    fade->init(effect.fadeIn, qsf::Time::fromSeconds(static_cast<double>(seconds)), effect.deleteOwner);
  });
}

EFFECT(FadeInOut, "Units", "Lets entities appear or vanish by degrees")

}
