#include "game_plugin/scenario/world/Spawn.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/map/MapHelper.h"
#include "qsf/Qsf.h"
#include "qsf/asset/AssetProxy.h"

namespace script {

qsf::Entity* spawnPrefab(const std::string& localAssetName) {
  const qsf::BaseAsset* asset = qsf::AssetProxy(localAssetName).getAsset();
  if (!asset) {
    logInfo("Asset is not valid");
    if (hints::isOn()) hintMissingAsset(localAssetName);
    return nullptr;
  }
  qsf::Entity* entity =
      em5::MapHelper(qsf::getMainMap()).createObjectByLocalPrefabAssetId(qsf::StringHash(asset->getName()));
  if (!entity) logInfo("Unit was not created");
  return entity;
}

}
