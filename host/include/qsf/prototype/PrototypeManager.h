#pragma once
#include "qsf/prototype/Prototype.h"

#include <unordered_map>

namespace qsf {

class JsonPlace;

/// A prototype that new entities are copied from. It doesn't change once it is read.
class QSF_API Prefab : public Prototype {
public:
  Prefab(std::uint64_t id, std::string localAssetName);
  ~Prefab() override;
  const std::string& getLocalAssetName() const { return mLocalAssetName; }

  /// Makes the components that a JSON object tells. Called once. Throws LoadError.
  void read(const JsonPlace& components);
  /// Gives a fresh prototype what this one has: components of the same classes whose properties have the same values.
  /// They aren't started.
  void copyComponentsTo(Prototype& target) const;

private:
  struct Blueprint;
  std::string mLocalAssetName;
  std::unique_ptr<Blueprint> mBlueprint;
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
