#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/FadeEffectComponent.h"

namespace script {

struct FadeInOutEffect : DefaultEffect {
  Argument entityList;
  bool fadeIn = true;
  Argument time;
  bool deleteOwner = false;
};

static void read(FadeInOutEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities to fade");
  effect.fadeIn = in.flag(2, true, "FadeIn", "true fades in, false fades out");
  effect.time = in.number(3, "1.0", "Time", "Seconds that it takes");
  effect.deleteOwner = in.flag(4, false, "DeleteOwner", "Destroys the entities at the end");
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
