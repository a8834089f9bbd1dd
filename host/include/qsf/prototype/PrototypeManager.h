#pragma once
#include "qsf/prototype/Prototype.h"

#include <map>
#include <unordered_map>

namespace qsf {

/// A prototype that new entities are copied from.
class QSF_API Prefab : public Prototype {
public:
  Prefab(std::uint64_t id, std::string localAssetName) : Prototype(id), mLocalAssetName(std::move(localAssetName)) {}
  ~Prefab() override { destroyAllComponents(); }
  const std::string& getLocalAssetName() const { return mLocalAssetName; }

private:
  std::string mLocalAssetName;
};

/// The prefabs, read from their files at first use and kept. Owned by Qsf.
class QSF_API PrototypeManager {
public:
  /// Null if there is no such prefab asset. Throws LoadError if its file is faulty.
  Prefab* getPrefabByLocalAssetId(StringHash localAssetId);
  /// Forgets all prefabs; they are read anew at their next use. Needed before a plug-in whose components they hold
  /// goes.
  void clear() { mPrefabs.clear(); }

private:
  std::unordered_map<StringHash, std::unique_ptr<Prefab>> mPrefabs;
};

}
