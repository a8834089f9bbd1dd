#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/LoadError.h"
#include "qsf/base/StringHashManager.h"
#include "qsf/localization/LocalizationSystem.h"
#include "qsf/log/LogSystem.h"

#include <algorithm>
#include <filesystem>
#include <tuple>

namespace qsf {

namespace fs = std::filesystem;

namespace {

/// A project of a hundred thousand files is meant; a link that leads back into the folder is not followed.
std::vector<fs::path> listFiles(const fs::path& directory) {
  std::vector<fs::path> files;
  try {
    for (auto entry = fs::recursive_directory_iterator(directory); entry != fs::recursive_directory_iterator();
         ++entry) {
      const bool hidden = entry->path().filename().native().starts_with('.');
      if (hidden && entry->is_directory())
        entry.disable_recursion_pending();
      else if (!hidden && entry->is_regular_file())
        files.push_back(entry->path().lexically_relative(directory));
    }
  } catch (const fs::filesystem_error& fault) {
    throw LoadError(directory.string(), "", std::string("the folder cannot be read: ") + fault.code().message());
  }
  // A name's data stand in its .json file, whatever lies beside it; among other endings the alphabet decides.
  std::sort(files.begin(), files.end(), [](const fs::path& left, const fs::path& right) {
    return std::tuple(left.parent_path(), left.stem(), left.extension() != ".json", left.extension()) <
           std::tuple(right.parent_path(), right.stem(), right.extension() != ".json", right.extension());
  });
  return files;
}

std::vector<std::unique_ptr<BaseAsset>> listAssets(AssetPackage& package) {
  const std::string& project = package.getProject().getName();
  const fs::path directory = package.getProject().getAbsoluteDirectory();
  std::vector<std::unique_ptr<BaseAsset>> assets;
  std::set<std::string> names;
  for (const fs::path& file : listFiles(directory)) {
    if (std::distance(file.begin(), file.end()) < 3) // <type>/<category>/<name>
      continue;
    std::string name = project + "/" + (file.parent_path() / file.stem()).generic_string();
    if (names.insert(name).second)
      assets.push_back(std::make_unique<BaseAsset>(package, std::move(name), (directory / file).string()));
  }
  return assets;
}

void readTextsAnew() {
  try {
    if (const Qsf* host = Qsf::instance()) host->getLocalizationSystem().reload();
  } catch (const LoadError& fault) {
    logMessage(LogSystem::ERROR, fault.what());
  }
}

}

std::string Project::getBaseDirectory() const { return fs::path(mDirectory).parent_path().parent_path().string(); }

void AssetPackage::mount() {
  try {
    takeUp();
  } catch (const LoadError& fault) {
    return logMessage(LogSystem::ERROR, fault.what());
  }
  readTextsAnew();
}

void AssetPackage::takeUp() {
  if (mAssets.empty()) mAssets = listAssets(*this);
  mIsMounted = true;
  mUnmounted.clear();
  mMounted.clear();
  for (const auto& asset : mAssets) {
    mMounted.push_back(asset.get());
    mManager.mAssets[asset->getId()] = asset.get();
    if (const Qsf* host = Qsf::instance())
      host->getStringHashManager().registerStringHash(asset->getId(), asset->getName());
  }
}

void AssetPackage::unmountAssetByGlobalAssetId(std::uint64_t globalAssetId) {
  const auto found = std::ranges::find_if(
      mMounted, [globalAssetId](const BaseAsset* asset) { return asset->getId().getHash() == globalAssetId; });
  if (found == mMounted.end()) return;
  const BaseAsset& asset = **found;
  mMounted.erase(found);
  mUnmounted.insert(asset.getId());
  mManager.mAssets.erase(asset.getId());
  if (asset.getType() == "text") readTextsAnew();
}

}
