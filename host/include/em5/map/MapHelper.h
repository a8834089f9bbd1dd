#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/map/Map.h"

namespace em5 {

class Player;

/// Operations on a whole map. Made on the spot; lives no longer than the map.
class QSF_API MapHelper {
public:
  explicit MapHelper(qsf::Map& map) : mMap(map) {}

  /// A new entity from the prefab, started if the map is; null if there is no such prefab or if its file is faulty.
  qsf::Entity* createObjectByLocalPrefabAssetId(qsf::StringHash localPrefabAssetId);
  /// Has that player's camera fly to the entity; noted in the call recorder.
  void flyCameraToEntity(const qsf::Entity& entity, const Player& player);

private:
  qsf::Map& mMap;
};

}
