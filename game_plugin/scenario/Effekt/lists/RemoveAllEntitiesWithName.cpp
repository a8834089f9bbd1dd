#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/PlaceholderNames.h"

#include "qsf/component/MetadataComponent.h"

namespace script {

struct RemoveAllEntitiesWithNameEffect : DefaultEffect {
  Argument entityList;
  Argument entityName;
};

static void read(RemoveAllEntitiesWithNameEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Name of the list");
  effect.entityName = readStringParameter(tokens, 2, "no_name", "EntityName", "Name of the entities to remove");
}

static void run(const RemoveAllEntitiesWithNameEffect& effect, ScenarioHandler& handler) {
  if (!areNameParametersAtPlaceholders(handler, effect.entityList, effect.entityName)) return;
  const std::string name = handler.ResolveString(effect.entityName);
  filterIntoList(handler, effect.entityList, effect.entityList, [&](const qsf::Entity& entity) {
    const auto* metadata = entity.getComponent<qsf::MetadataComponent>();
    return metadata && metadata->getName() != name;
  });
}

EFFECT(RemoveAllEntitiesWithName, "", "")

}
