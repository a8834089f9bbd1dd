#pragma once
#include "qsf/prototype/Prototype.h"

#include <glm/glm.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace qsf {

class Map;
class Prefab;

/// Copies of a prefab's prototypes that are to become entities: on no map yet, under the ids that the entities will
/// have. A prefab of this host has one prototype.
class QSF_API PrefabContent {
public:
  /// Ids of a prefab's prototypes, and those that their copies get.
  using IdMatchingMap = std::unordered_map<std::uint64_t, std::uint64_t>;

  PrefabContent();
  ~PrefabContent();
  PrefabContent(const PrefabContent&) = delete;
  PrefabContent& operator=(const PrefabContent&) = delete;

  /// An id that is free on the map for each of the prefab's prototypes.
  static IdMatchingMap buildIdMatchingMapWithGeneratedIds(const Prefab& prefab, Map& map);
  /// Replaces the content. A prototype without an id in the map gets none, the uninitialised one.
  void cloneFromPrototype(const Prefab& prefab, const IdMatchingMap& ids);
  /// Prepares the content for becoming entities: a place, metadata that tell the prefab, and if the prefab gives its
  /// entities no name, the last part of `prefabName`, which may be null.
  void processForEntityInstancing(const std::string* prefabName, const glm::vec3& position);

  /// The main one first.
  const std::vector<std::unique_ptr<Prototype>>& getPrototypes() const { return mPrototypes; }
  /// Null while there is no content.
  Prototype* getMainPrototype() const { return mPrototypes.empty() ? nullptr : mPrototypes.front().get(); }

private:
  std::vector<std::unique_ptr<Prototype>> mPrototypes;
  std::string mPrefab;
};

}
