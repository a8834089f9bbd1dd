#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/lists/PlaceholderNames.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/component/MetadataComponent.h"

namespace script {

struct RemoveAllEntitiesWithNameEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The test of its parameters stands the wrong way round: it works with the list no_list and the name no_name "
      "only.",
      "Entities without metadata are removed, too.",
      "Its messages speak of GetAllEntitiesWithName.",
  };

  Argument entityList;
  Argument entityName;
};

static void read(RemoveAllEntitiesWithNameEffect& effect, ParameterReader& in) {
  effect.entityList = in.listInOut(1, "no_list", "EntityList", "Name of the list");
  effect.entityName = in.text(2, "no_name", "EntityName", "Name of the entities to remove");
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
