#include "qsf/game/InventoryComponent.h"

#include "qsf/Qsf.h"
#include "qsf/game/EquipmentComponent.h"
#include "qsf/log/LogSystem.h"
#include "qsf/prototype/PrototypeManager.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf::game {

namespace {

bool isEquipment(const std::string& prefabName, const std::string& equipmentName) {
  const Qsf* host = Qsf::instance();
  if (!host) return false;
  try {
    const Prefab* prefab = host->getMainPrototypeManager().getPrefabByLocalAssetId(StringHash(prefabName));
    const auto* equipment = prefab ? prefab->getComponent<EquipmentComponent>() : nullptr;
    return equipment && equipment->getEquipmentName() == equipmentName;
  } catch (const std::exception& fault) {
    logMessage(LogSystem::ERROR, fault.what());
    return false;
  }
}

}

static const DeclaredClass<InventoryComponent> declared;

void InventoryComponent::declareCamp() {
  camp::Class::declare<InventoryComponent>("qsf::game::InventoryComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Items", &InventoryComponent::mItems);
}

bool InventoryComponent::hasItem(const std::string& localAssetName) const {
  return std::find(mItems.begin(), mItems.end(), localAssetName) != mItems.end();
}

std::string InventoryComponent::findItemByEquipmentName(const std::string& equipmentName) const {
  for (const std::string& item : mItems)
    if (isEquipment(item, equipmentName)) return item;
  return {};
}

}
