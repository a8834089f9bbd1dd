#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/map/Map.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

namespace em5 {

/// Where persons and vehicles of the map come from.
class QSF_API SpawnPointComponent {
public:
  /// A new entity of a prefab that is drawn from the spawn pool (see SpawnPoolManager). Null if there is none.
  static qsf::Entity* spawnRandomAt(qsf::Map& map, qsf::StringHash spawnPoolAssetId, const glm::vec3& position,
                                    const glm::quat& rotation);
};

}
