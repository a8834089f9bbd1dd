#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/map/EntityHelper.h"

namespace script {

struct ObjectStartBurningEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The descriptions of the two parameters stand at each other's place.",
      "Without the event nothing burns.",
  };

  Argument uniqueId;
  Argument entityList;
};

static void read(ObjectStartBurningEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "List of Objects we want to ignite");
  effect.entityList = in.list(2, "no_entitylist", "EntityList", "Add to an existing event");
}

static void run(const ObjectStartBurningEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintLiteralIds(effect.entityList);
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  for (const std::uint64_t id : ids) {
    qsf::Entity* entity = findEntity(id);
    if (!entity) continue;
    ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
    if (!event) return;
    em5::EntityHelper(*entity).startFire(event);
  }
}

EFFECT(ObjectStartBurning, "Events", "Ignite an Object")

}
