#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/PlaceholderNames.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/map/EntityMapQuery.h"

namespace script {

struct GetAllEntitiesWithNameEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The test of its parameters stands the wrong way round: it works with the list no_list and the name no_name "
      "only.",
  };

  Argument entityList;
  Argument entityName;
  bool clearListBefore = true;
};

static void read(GetAllEntitiesWithNameEffect& effect, ParameterReader& in) {
  effect.entityList = in.listOut(1, "no_list", "EntityList", "List that gets the entities");
  effect.entityName = in.text(2, "no_name", "EntityName", "Name of the entities");
  effect.clearListBefore = in.flag(3, true, "ClearListBefore", "Empties the list before entities are added");
}

static void run(const GetAllEntitiesWithNameEffect& effect, ScenarioHandler& handler) {
  if (!areNameParametersAtPlaceholders(handler, effect.entityList, effect.entityName)) return;
  if (effect.clearListBefore) handler.ClearEntityList(effect.entityList);
  const qsf::EntityMapQuery query(qsf::getMainMap());
  for (const qsf::Entity* entity : query.getAllInstancesByName(handler.ResolveString(effect.entityName)))
    handler.AddToEntityList(effect.entityList, entity->getId());
}

EFFECT(GetAllEntitiesWithName, "", "")

}
