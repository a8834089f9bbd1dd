#include "em5/spawn/SpawnPoolManager.h"

#include "em5/base/JsonMembers.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/base/Random.h"
#include "qsf/log/LogSystem.h"

namespace em5 {

std::string SpawnPoolManager::getRandomNameFromSpawnPool(qsf::StringHash spawnPoolAssetId) {
  const qsf::BaseAsset* asset = qsf::AssetProxy(spawnPoolAssetId).getAsset();
  if (!asset) return {};
  try {
    const std::string file = asset->getFile();
    const qsf::Json json = qsf::readJsonFile(file);
    const qsf::JsonPlace root(json, file);
    root.expectObject({"prefabs"});
    const std::vector<std::string> prefabs = asTexts(root.member("prefabs"));
    if (prefabs.empty()) return {};
    return prefabs[qsf::Random::getRandomUint(0, static_cast<std::uint32_t>(prefabs.size() - 1))];
  } catch (const std::exception& fault) {
    qsf::logMessage(qsf::LogSystem::ERROR, fault.what());
    return {};
  }
}

}
