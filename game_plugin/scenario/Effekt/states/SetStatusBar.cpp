#include "game_plugin/scenario/language/Vocabulary.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/OverlayWalk.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"

#include "em5/component/StatusOverlayComponent.h"

namespace script {

struct SetStatusBarEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "An unknown name means the bar of fires.",
      "An id without an entity is logged in the words of SetStatusIcon.",
  };

  Argument entityList;
  Argument barType;
  Argument progress;
  bool active = true;
};

static void read(SetStatusBarEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that have it over them");
  effect.barType =
      in.wordsInAnyCase(2, "BAR_TYPE_FIRE", "BarType", "Bar; capitals and small letters are the same", barTypeWords());
  effect.progress = in.number(3, "1.0", "Progress", "Length of the bar, 0 to 1");
  effect.active = in.flag(4, true, "Active", "true shows it, false hides it");
}

static void run(const SetStatusBarEffect& effect, ScenarioHandler& handler) {
  const int bar = ToBarType(resolveInCapitals(handler, effect.barType));
  if (isLeftAt(effect.entityList.text(), "no_list", "SetStatusBarEffect::EntityList not found")) return;
  forEachOverlaidEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    if (effect.active)
      em5::StatusOverlayComponent::showBarOverlay(entity, bar, handler.ResolveFloat(effect.progress));
    else
      em5::StatusOverlayComponent::hideBarOverlay(entity, bar);
  });
}

EFFECT(SetStatusBar, "Units", "Shows or hides a bar over entities")

}
