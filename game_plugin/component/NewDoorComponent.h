#pragma once
#include "em5/component/DoorComponent.h"

namespace bt {

/// A door whose sound ends with its movement: when its leaf turns while it is open or closed, it falls silent.
class NewDoorComponent : public em5::DoorComponent {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"bt::NewDoorComponent"};
  explicit NewDoorComponent(qsf::Prototype* prototype) : DoorComponent(prototype) {}
  static void declareCamp();

protected:
  bool implementsOnComponentPropertyChange() const override { return true; }
  void onComponentPropertyChange(const qsf::Component& component, qsf::StringHash propertyId) override;
};

}
CAMP_TYPE_NONCOPYABLE(bt::NewDoorComponent)
