#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

#include "qsf/asset/AssetProxy.h"
#include "qsf/component/MetadataComponent.h"

namespace script {

struct HasNameCondition : DefaultCondition {
  Argument entityList;
  std::string localAssetName;
  Argument entityListOut;
};

static void read(HasNameCondition& condition, const Tokens& tokens) {
  condition.entityList =
      readStringParameter(tokens, 1, "EntitiesToCheck", "EntityList", "EntityList which should be checked");
  condition.localAssetName = readStringParameter(tokens, 2, "Name", "LocalAssetName", "Name which should be matched");
  condition.entityListOut = readStringParameter(
      tokens, 3, "no_list", "EntityListOut",
      "All the entities which passed the checks are written to this list. Notice that the list is cleared before. BUT "
      "EntityList and EntityList[out] can be the same - this will remove units that dont match this criteria");
}

/// Kept: the answer is always false. Scripts use the out list, or write "!HasName", which always holds.
static bool test(const HasNameCondition& condition, ScenarioHandler& handler) {
  writePassingToList(handler, condition.entityList, condition.entityListOut, [&](const qsf::Entity& entity) {
    const auto* metadata = entity.getComponent<qsf::MetadataComponent>();
    const qsf::BaseAsset* asset = metadata ? qsf::AssetProxy(metadata->getBasePrefab()).getAsset() : nullptr;
    return asset && asset->getName() == condition.localAssetName;
  });
  return false;
}

CONDITION(HasName, "Units", "True if at least one entity is a valid vehicle and belongs to the player")

}
