#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

#include "em5/map/EntityHelper.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/map/ComponentMapQuery.h"

namespace script {

struct UnitsInAreaCondition : DefaultCondition {
  std::uint64_t centerUnit;
  float range;
  std::uint32_t number;
  std::string localAssetName; ///< empty: all
  ComparisonOperator operatorText;
  Argument entityListOut;
};

static void read(UnitsInAreaCondition& condition, const Tokens& tokens) {
  condition.centerUnit =
      readUInt64Parameter(tokens, 1, qsf::UNINITIALIZED_ID, "CenterUnit", "the center of the circle");
  condition.number = static_cast<std::uint32_t>(
      readIntParameter(tokens, 2, 1, "Number", "Number to which the Unit Count is compared"));
  condition.range = readFloatParameter(tokens, 3, 200.0f, "Range", "The maximum range which is considered");
  condition.localAssetName =
      readStringParameter(tokens, 4, "No Asset Name Found", "LocalAssetName of counted units",
                          "LocalAssetName of the Unit. Can be \"\" but then ALL units are counted");
  condition.operatorText = readStringParameter(tokens, 5, "==", "Operator", "(<,<=,==,>=,>)");
  condition.entityListOut = readStringParameter(tokens, 6, "", "EntityList[out]", "Returns the units which are inside");
}

static bool isOfAsset(const qsf::MetadataComponent& metadata, const std::string& localAssetName) {
  if (localAssetName.empty()) return true;
  const qsf::BaseAsset* asset = qsf::AssetProxy(metadata.getBasePrefab()).getAsset();
  return asset && asset->getName() == localAssetName;
}

/// Kept: the out list is never cleared. Ids pile up in it while scripts watch who has ever been in the area; the count
/// doesn't come from it.
static bool test(const UnitsInAreaCondition& condition, ScenarioHandler& handler) {
  std::uint32_t count = 0;
  if (qsf::Entity* center = findEntity(condition.centerUnit)) {
    const qsf::ComponentMapQuery query(center->getMap());
    for (qsf::Component* found : query.getInstancesInCircleById(
             qsf::MetadataComponent::COMPONENT_ID, em5::EntityHelper(*center).getPosition(), condition.range)) {
      qsf::Entity& entity = found->getEntity();
      if (em5::EntityHelper(entity).getParentEntity()) continue; // what is linked to another entity rides with it
      if (!isOfAsset(static_cast<const qsf::MetadataComponent&>(*found), condition.localAssetName)) continue;
      ++count;
      handler.AddToEntityList(condition.entityListOut, entity.getId());
    }
  }
  return condition.operatorText(static_cast<float>(count), static_cast<float>(condition.number));
}

CONDITION(UnitsInArea, "General", "Counts the Units (given by LocalAssetName) in a specific Area")

}
