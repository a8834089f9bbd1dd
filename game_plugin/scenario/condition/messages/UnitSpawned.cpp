#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/map/EntityHelper.h"
#include "em5/order/OrderInfo.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/component/MetadataComponent.h"

namespace script {

struct UnitSpawnedCondition : DefaultCondition {
  Argument entityList;
  Argument filterName; ///< empty: all
};

static void read(UnitSpawnedCondition& condition, ParameterReader& in) {
  condition.entityList =
      in.listOut(1, "EntitiesToCheck", "EntityList",
                 "All units that matched are written to this list. List is cleared before the writting process");
  condition.filterName = in.raw(2, "", "FilterName",
                                "LocalAssetName of the Unit you want filter. You can insert an empty string which "
                                "disables filtering. In the latest version you can also use the \"orderinfoname\" "
                                "(like TLF)");
}

static bool passes(qsf::Entity& entity, const std::string& filterName) {
  const auto* metadata = entity.getComponent<qsf::MetadataComponent>();
  if (!metadata) return false;
  if (filterName.empty()) return true;
  const qsf::BaseAsset* prefab = qsf::AssetProxy(metadata->getBasePrefab()).getAsset();
  if (prefab && prefab->getName() == filterName) return true;
  const em5::OrderInfo* orderInfo = em5::EntityHelper(entity).getOrderInfo();
  return orderInfo && orderInfo->getName() == filterName;
}

static bool test(const UnitSpawnedCondition& condition, ScenarioHandler& handler) {
  handler.ClearEntityList(condition.entityList);
  if (const ScenarioMessageReciever* reciever = ScenarioMessageReciever::get())
    for (const std::uint64_t id : reciever->getSpawned(&handler))
      if (qsf::Entity* entity = findEntity(id); entity && passes(*entity, condition.filterName))
        handler.AddToEntityList(condition.entityList, id);
  return handler.getEntityListSize(condition.entityList) != 0;
}

CONDITION(UnitSpawned, "MessageListener",
          "All units that matched are written to this list. List is cleared before the writting process")

}
