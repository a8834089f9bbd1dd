#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/asset/AssetProxy.h"
#include "qsf/component/MetadataComponent.h"

namespace script {

struct HasNameCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "It never holds: what has the name stands in the out list, and !HasName always holds.",
  };

  Argument entityList;
  Argument localAssetName;
  Argument entityListOut;
};

static void read(HasNameCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "EntitiesToCheck", "EntityList", "EntityList which should be checked");
  condition.localAssetName = in.prefab(2, "Name", "LocalAssetName", "Name which should be matched");
  condition.entityListOut = in.listOut(
      3, "no_list", "EntityListOut",
      "All the entities which passed the checks are written to this list. Notice that the list is cleared before. BUT "
      "EntityList and EntityList[out] can be the same - this will remove units that dont match this criteria");
}

static bool test(const HasNameCondition& condition, ScenarioHandler& handler) {
  writePassingToList(handler, condition.entityList, condition.entityListOut, [&](const qsf::Entity& entity) {
    const auto* metadata = entity.getComponent<qsf::MetadataComponent>();
    const qsf::BaseAsset* asset = metadata ? qsf::AssetProxy(metadata->getBasePrefab()).getAsset() : nullptr;
    return asset && condition.localAssetName == asset->getName();
  });
  return false;
}

CONDITION(HasName, "Units", "True if at least one entity is a valid vehicle and belongs to the player")

}
