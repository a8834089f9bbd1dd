#pragma once
#include "qsf/asset/AssetProxy.h"

#include <string>
#include <vector>

namespace em5 {

/// A map by name, whether it exists or not. A value.
class QSF_API MapIdentifier {
public:
  MapIdentifier() = default;
  static MapIdentifier fromLocalAssetName(const std::string& localAssetName);

  const std::string& getLocalAssetName() const { return mLocalAssetName; }
  bool isValid() const { return qsf::AssetProxy(mLocalAssetName).getAsset() != nullptr; }
  /// Names of the seasonal events that this map knows, in the order of the project's file; empty for an unknown map.
  std::vector<std::string> getSeasonalEvents() const;

private:
  std::string mLocalAssetName;
};

}
