#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/EntityAccess.h"
#include "game_plugin/scenario/shared/Placeholder.h"

#include "qsf/Qsf.h"
#include "qsf/map/Map.h"

namespace script {

struct DestroyObjectEffect : DefaultEffect {
  Argument entityList;
};

static void read(DestroyObjectEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Entities to destroy");
}

static void run(const DestroyObjectEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "DestroyObjectEffect::EntityList not found")) return;
  for (const std::uint64_t id : handler.ResolveEntityList(effect.entityList)) {
    if (findEntity(id))
      qsf::getMainMap().destroyObjectById(id);
    else // in the words of another entry, which authors search for
      logError("SetStatusIconEffect::EntityList did not found " + std::to_string(id));
  }
}

EFFECT(DestroyObject, "Units", "Removes entities from the map")

}
