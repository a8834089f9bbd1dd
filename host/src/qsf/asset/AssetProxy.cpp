#include "qsf/asset/AssetProxy.h"

#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/StringHashManager.h"

namespace qsf {

std::string BaseAsset::getType() const {
  const std::size_t begin = mLocalName.find('/') + 1;
  return mLocalName.substr(begin, mLocalName.find('/', begin) - begin);
}

AssetProxy::AssetProxy(std::uint64_t globalAssetId) {
  if (globalAssetId < UNINITIALIZED_STRING_HASH) mId = StringHash(static_cast<std::uint32_t>(globalAssetId));
}

AssetProxy::AssetProxy(const std::string& localAssetName) : mId(localAssetName) {
  if (const Qsf* host = Qsf::instance(); host && mId.isInitialized())
    host->getStringHashManager().registerStringHash(mId, localAssetName);
}

const BaseAsset* AssetProxy::getAsset() const {
  const Qsf* host = Qsf::instance();
  return host && mId.isInitialized() ? host->getProjectManager().getAssetById(mId) : nullptr;
}

AssetPackage* AssetProxy::getAssetPackage() const {
  const BaseAsset* asset = getAsset();
  return asset ? &asset->getAssetPackage() : nullptr;
}

std::uint32_t AssetProxy::getGlobalAssetId() const {
  const BaseAsset* asset = getAsset();
  return asset ? asset->getId().getHash() : UNINITIALIZED_STRING_HASH;
}

std::string AssetProxy::getLocalAssetName() const {
  const BaseAsset* asset = getAsset();
  return asset ? asset->getName() : std::string();
}

}
