#include "qsf/prototype/PrototypeManager.h"

#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/prototype/ComponentReader.h"
#include "qsf/prototype/PropertyDifferences.h"

namespace qsf {

/// How a copy is made: the values of each component, in the order of the components.
struct Prefab::Blueprint {
  std::vector<PropertyDifferences> components;
};

Prefab::Prefab(std::uint64_t id, std::string localAssetName)
    : Prototype(id), mLocalAssetName(std::move(localAssetName)), mBlueprint(std::make_unique<Blueprint>()) {}

Prefab::~Prefab() { destroyAllComponents(); }

void Prefab::read(const JsonPlace& components) {
  readComponents(components, *this);
  for (const Component* component : getComponents())
    mBlueprint->components.emplace_back(*component);
}

void Prefab::copyComponentsTo(Prototype& target) const {
  for (std::size_t i = 0; i < mBlueprint->components.size(); ++i)
    if (Component* copy = target.getOrCreateComponentById(getComponents()[i]->getId(), false))
      mBlueprint->components[i].applyTo(*copy);
}

Prefab* PrototypeManager::getPrefabByLocalAssetId(StringHash localAssetId) {
  const BaseAsset* asset = AssetProxy(localAssetId).getAsset(); // it may have been unmounted since
  if (!asset || asset->getType() != "prefab") return nullptr;
  if (const auto known = mPrefabs.find(localAssetId); known != mPrefabs.end()) return known->second.get();
  const Json document = readJsonFile(asset->getFile());
  const JsonPlace root(document, asset->getFile());
  root.expectObject({"description", "components"});
  auto prefab = std::make_unique<Prefab>(localAssetId.getHash(), asset->getName());
  prefab->read(root.member("components"));
  return (mPrefabs[localAssetId] = std::move(prefab)).get();
}

}
