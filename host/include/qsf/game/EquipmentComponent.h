#pragma once
#include "qsf/component/Component.h"

namespace qsf::game {

/// Makes an entity a piece of equipment that persons hold. Property "EquipmentName".
class QSF_API EquipmentComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::game::EquipmentComponent"};
  explicit EquipmentComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const std::string& getEquipmentName() const { return mEquipmentName; }
  void setEquipmentName(const std::string& name) { mEquipmentName = name; }

private:
  std::string mEquipmentName;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::game::EquipmentComponent)
