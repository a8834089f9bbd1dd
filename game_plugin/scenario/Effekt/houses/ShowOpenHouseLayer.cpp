#include "game_plugin/component/OpenHouseComponent.h"
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ShowOpenHouseLayerEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A house goes from floor to floor, four steps at most, and always at least one: one of four layers doesn't find "
      "the "
      "floor that it shows already.",
      "A floor that isn't found leaves the house four steps further.",
  };

  Argument entityList;
  Argument layer;
};

static void read(ShowOpenHouseLayerEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList Caller", "Open houses");
  effect.layer = in.number(2, "0", "Layer", "The floor, from 0; a fraction is dropped");
}

static void run(const ShowOpenHouseLayerEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](const qsf::Entity& entity) {
    if (auto* house = entity.getComponent<OpenHouseComponent>())
      house->SetLayer(truncateToInt(handler.ResolveFloat(effect.layer)));
  });
}

EFFECT(ShowOpenHouseLayer, "OpenHouse", "Opens a floor of open houses")

}
