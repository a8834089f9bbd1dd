#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/component/PersonComponent.h"
#include "em5/map/EntityHelper.h"

#include <algorithm>

namespace script {

struct RemoveInvalidEntitiesFromListEffect : DefaultEffect {
  Argument entityList;
};

static void read(RemoveInvalidEntitiesFromListEffect& effect, ParameterReader& in) {
  effect.entityList = in.listInOut(1, "no_list", "EntityList", "Name of the list");
}

static bool isInvalid(qsf::Entity* entity) {
  if (!entity) return true;
  const em5::EntityHelper helper(*entity);
  if (helper.isBurning()) return true;
  if (entity->getComponent<em5::PersonComponent>()) {
    if (helper.isCivilPerson() && !helper.isCivilPersonInValidState()) return true;
    if (helper.isSquadPerson() && !helper.isSquadUnitInValidState()) return true;
  }
  return !helper.isInMapBoundaries();
}

static void run(const RemoveInvalidEntitiesFromListEffect& effect, ScenarioHandler& handler) {
  EntityIds ids = handler.ResolveEntityList(effect.entityList);
  std::vector<std::uint64_t>& invalid = ids.vector();
  std::erase_if(invalid, [](std::uint64_t id) { return !isInvalid(findEntity(id)); });
  std::sort(invalid.begin(), invalid.end());
  handler.RemoveFromEntityList(effect.entityList, invalid);
}

EFFECT(RemoveInvalidEntitiesFromList, "EntityLists",
       "Removes entities that don't exist, burn, are outside of the map, or are persons who can't act")

}
