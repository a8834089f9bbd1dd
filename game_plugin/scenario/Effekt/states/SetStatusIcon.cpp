#include "game_plugin/scenario/language/Vocabulary.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/OverlayWalk.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"

#include "em5/component/StatusOverlayComponent.h"

namespace script {

struct SetStatusIconEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "An unknown name means the arsonist's icon.",
  };

  Argument entityList;
  Argument statusIcon;
  bool active = true;
};

static void read(SetStatusIconEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that have it over them");
  effect.statusIcon = in.wordsInAnyCase(2, "STATUS_ICON_ARSONIST", "StatusIcon",
                                        "Icon; capitals and small letters are the same", statusIconWords());
  effect.active = in.flag(3, true, "Active", "true shows it, false hides it");
}

static void run(const SetStatusIconEffect& effect, ScenarioHandler& handler) {
  const int icon = ToStatusIcon(resolveInCapitals(handler, effect.statusIcon)).value_or(em5::STATUS_ICON_ARSONIST);
  if (isLeftAt(effect.entityList.text(), "no_list", "SetStatusIconEffect::EntityList not found")) return;
  forEachOverlaidEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    em5::StatusOverlayComponent::showIcon(entity, icon, effect.active);
  });
}

EFFECT(SetStatusIcon, "Units", "Shows or hides a status icon over entities")

}
