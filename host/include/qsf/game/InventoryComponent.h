#pragma once
#include "qsf/component/Component.h"

#include <string>
#include <vector>

namespace qsf::game {

/// What an entity has on board for others to take out; it never runs out. Property "Items": local asset names of
/// prefabs.
class QSF_API InventoryComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::game::InventoryComponent"};
  explicit InventoryComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const std::vector<std::string>& getItems() const { return mItems; }
  void setItems(const std::vector<std::string>& items) { mItems = items; }
  /// By the exact local asset name.
  bool hasItem(const std::string& localAssetName) const;
  /// The first item whose prefab is equipment of that name; empty if there is none. A faulty prefab is logged and
  /// passed over.
  std::string findItemByEquipmentName(const std::string& equipmentName) const;

private:
  std::vector<std::string> mItems;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::game::InventoryComponent)
