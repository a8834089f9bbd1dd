#pragma once
#include "qsf/base/StringHash.h"

#include <string>

namespace qsf {

class AssetPackage;

/// A file of a project, known by its local name `<project>/<type>/<category>/<name>`. Owned by its project.
class QSF_API BaseAsset {
public:
  BaseAsset(AssetPackage& package, std::string localName, std::string file)
      : mPackage(package), mLocalName(std::move(localName)), mFile(std::move(file)) {}
  AssetPackage& getAssetPackage() const { return mPackage; }
  /// The whole local asset name.
  const std::string& getName() const { return mLocalName; }
  const std::string& getFile() const { return mFile; }
  StringHash getId() const { return StringHash(mLocalName); }
  /// The second part of the local name: "map", "prefab", "text".
  std::string getType() const;

private:
  AssetPackage& mPackage;
  std::string mLocalName;
  std::string mFile;
};

/// Refers to an asset by name or id, whether it exists or not.
class QSF_API AssetProxy {
public:
  AssetProxy() = default;
  explicit AssetProxy(StringHash localAssetId) : mId(localAssetId) {}
  /// By the global id, as getGlobalAssetId gives it.
  explicit AssetProxy(std::uint64_t globalAssetId);
  /// The running host remembers the name of the id, so that it can be told where the asset doesn't exist.
  explicit AssetProxy(const std::string& localAssetName);

  /// Null if no mounted project has it.
  const BaseAsset* getAsset() const;
  /// Null if no mounted project has the asset.
  AssetPackage* getAssetPackage() const;
  /// Uninitialised if the asset doesn't exist.
  std::uint32_t getGlobalAssetId() const;
  StringHash getLocalAssetId() const { return mId; }
  /// Empty if the asset doesn't exist.
  std::string getLocalAssetName() const;

private:
  StringHash mId;
};

}
