#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/map/EntityHelper.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/map/ComponentMapQuery.h"

namespace script {

struct UnitsInAreaCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "The out list is never emptied: it collects whoever has been in the area, and doesn't change the count.",
      "A line without LocalAssetName counts nothing; only an empty text counts all units.",
      "What is linked to another entity doesn't count.",
  };

  std::uint64_t centerUnit;
  float range;
  std::uint32_t number;
  Argument localAssetName; ///< empty: all
  ComparisonOperator operatorText;
  Argument entityListOut;
};

static void read(UnitsInAreaCondition& condition, ParameterReader& in) {
  condition.centerUnit = in.id(1, qsf::UNINITIALIZED_ID, "CenterUnit", "the center of the circle");
  condition.number =
      static_cast<std::uint32_t>(in.integer(2, 1, "Number", "Number to which the Unit Count is compared"));
  condition.range = in.decimal(3, 200.0f, "Range", "The maximum range which is considered");
  condition.localAssetName = in.prefab(4, "No Asset Name Found", "LocalAssetName of counted units",
                                       "LocalAssetName of the Unit. Can be \"\" but then ALL units are counted");
  condition.operatorText = in.comparison(5, "==", "Operator", "(<,<=,==,>=,>)");
  condition.entityListOut = in.listOut(6, "", "EntityList[out]", "Returns the units which are inside");
}

static bool isOfAsset(const qsf::MetadataComponent& metadata, const std::string& localAssetName) {
  if (localAssetName.empty()) return true;
  const qsf::BaseAsset* asset = qsf::AssetProxy(metadata.getBasePrefab()).getAsset();
  return asset && asset->getName() == localAssetName;
}

static bool test(const UnitsInAreaCondition& condition, ScenarioHandler& handler) {
  std::uint32_t count = 0;
  if (qsf::Entity* center = findEntity(condition.centerUnit)) {
    const qsf::ComponentMapQuery query(center->getMap());
    for (qsf::Component* found : query.getInstancesInCircleById(
             qsf::MetadataComponent::COMPONENT_ID, em5::EntityHelper(*center).getPosition(), condition.range)) {
      qsf::Entity& entity = found->getEntity();
      if (em5::EntityHelper(entity).getParentEntity()) continue; // what is linked to another entity rides with it
      if (!isOfAsset(static_cast<const qsf::MetadataComponent&>(*found), condition.localAssetName.text())) continue;
      ++count;
      handler.AddToEntityList(condition.entityListOut, entity.getId());
    }
  }
  return condition.operatorText(static_cast<float>(count), static_cast<float>(condition.number));
}

CONDITION(UnitsInArea, "General", "Counts the Units (given by LocalAssetName) in a specific Area")

}
