#include "game_plugin/component/OpenHouseComponent.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/game/SelectableComponent.h"
#include "qsf/map/Map.h"
#include "qsf/physics/BulletCollisionComponent.h"

namespace script {

struct SetupOpenHouseForBurningEffect : DefaultEffect {
  Argument entityList;
};

static void read(SetupOpenHouseForBurningEffect& effect, ParameterReader& in) {
  effect.entityList =
      in.list(1, "no_list", "EntityList Caller", "Open houses, or entities of their floors, doors and parking sites");
}

/// Its own house first: another may list the house as a part of itself.
static qsf::Entity* findHouse(qsf::Entity& entity) {
  if (entity.getComponent<OpenHouseComponent>()) return &entity;
  return OpenHouseComponent::findHouse(entity.getMap(), entity.getId());
}

static void run(const SetupOpenHouseForBurningEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [](qsf::Entity& entity) {
    qsf::Entity* house = findHouse(entity);
    if (!house) return;
    const std::uint64_t doorId = house->getComponent<OpenHouseComponent>()->getDoorId();
    if (const qsf::Entity* door = house->getMap().getEntityById(doorId))
      if (auto* collision = door->getComponent<qsf::BulletCollisionComponent>()) collision->setActive(true);
    house->destroyComponentById(qsf::game::SelectableComponent::COMPONENT_ID);
  });
}

EFFECT(SetupOpenHouseForBurning, "OpenHouse",
       "Closes open houses that are to burn: the door blocks the way, and nobody selects them")

}
