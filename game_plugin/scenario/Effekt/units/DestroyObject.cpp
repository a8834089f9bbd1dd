#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "qsf/Qsf.h"
#include "qsf/map/Map.h"

namespace script {

struct DestroyObjectEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "An id without an entity is logged in the words of SetStatusIcon.",
  };

  Argument entityList;
};

static void read(DestroyObjectEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities to destroy");
}

static void run(const DestroyObjectEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "DestroyObjectEffect::EntityList not found")) return;
  for (const std::uint64_t id : handler.ResolveEntityList(effect.entityList)) {
    if (findEntity(id))
      qsf::getMainMap().destroyObjectById(id);
    else
      logError("SetStatusIconEffect::EntityList did not found " + std::to_string(id));
  }
}

EFFECT(DestroyObject, "Units", "Removes entities from the map")

}
