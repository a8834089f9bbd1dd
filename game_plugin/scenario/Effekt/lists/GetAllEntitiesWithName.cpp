#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/PlaceholderNames.h"

#include "qsf/Qsf.h"
#include "qsf/map/EntityMapQuery.h"

namespace script {

struct GetAllEntitiesWithNameEffect : DefaultEffect {
  Argument entityList;
  Argument entityName;
  bool clearListBefore = true;
};

static void read(GetAllEntitiesWithNameEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "List that gets the entities");
  effect.entityName = readStringParameter(tokens, 2, "no_name", "EntityName", "Name of the entities");
  effect.clearListBefore =
      readBoolParameter(tokens, 3, true, "ClearListBefore", "Empties the list before entities are added");
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
