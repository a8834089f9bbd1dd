#include "qsf/prototype/PrefabContent.h"

#include "qsf/base/Ids.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"
#include "qsf/prototype/PrototypeManager.h"

namespace qsf {

PrefabContent::PrefabContent() = default;
PrefabContent::~PrefabContent() = default;

PrefabContent::IdMatchingMap PrefabContent::buildIdMatchingMapWithGeneratedIds(const Prefab& prefab, Map& map) {
  return {{prefab.getId(), map.reserveEntityId()}};
}

void PrefabContent::cloneFromPrototype(const Prefab& prefab, const IdMatchingMap& ids) {
  mPrototypes.clear();
  mPrefab = prefab.getLocalAssetName();
  const auto id = ids.find(prefab.getId());
  auto clone = std::make_unique<Prototype>(id == ids.end() ? UNINITIALIZED_ID : id->second);
  prefab.copyComponentsTo(*clone);
  mPrototypes.push_back(std::move(clone));
}

void PrefabContent::processForEntityInstancing(const std::string* prefabName, const glm::vec3& position) {
  Prototype* main = getMainPrototype();
  if (!main) return;
  main->getOrCreateComponent<TransformComponent>()->setPosition(position);
  auto& metadata = *main->getOrCreateComponent<MetadataComponent>();
  metadata.setBasePrefab(StringHash(mPrefab));
  if (prefabName && metadata.getName().empty()) metadata.setName(prefabName->substr(prefabName->rfind('/') + 1));
}

}
