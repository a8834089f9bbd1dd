#include "qsf/prototype/PrototypeManager.h"

#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/prototype/ComponentReader.h"

namespace qsf {

Prefab* PrototypeManager::getPrefabByLocalAssetId(StringHash localAssetId) {
  if (const auto known = mPrefabs.find(localAssetId); known != mPrefabs.end()) return known->second.get();
  const BaseAsset* asset = AssetProxy(localAssetId).getAsset();
  if (!asset || asset->getType() != "prefab") return nullptr;
  const Json document = readJsonFile(asset->getFile());
  const JsonPlace root(document, asset->getFile());
  root.expectObject({"description", "components"});
  auto prefab = std::make_unique<Prefab>(localAssetId.getHash(), asset->getName());
  readComponents(root.member("components"), *prefab);
  return (mPrefabs[localAssetId] = std::move(prefab)).get();
}

}
