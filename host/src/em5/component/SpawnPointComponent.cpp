#include "em5/component/SpawnPointComponent.h"

#include "em5/spawn/SpawnPoolManager.h"
#include "qsf/component/TransformComponent.h"

namespace em5 {

qsf::Entity* SpawnPointComponent::spawnRandomAt(qsf::Map& map, qsf::StringHash spawnPoolAssetId,
                                                const glm::vec3& position, const glm::quat& rotation) {
  const std::string prefab = SpawnPoolManager::getRandomNameFromSpawnPool(spawnPoolAssetId);
  qsf::Entity* entity = prefab.empty() ? nullptr : map.createObjectByLocalPrefabAssetId(qsf::StringHash(prefab));
  if (entity) entity->getOrCreateComponent<qsf::TransformComponent>()->setPositionAndRotation(position, rotation);
  return entity;
}

}
