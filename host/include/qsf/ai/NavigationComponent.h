#pragma once
#include "qsf/component/Component.h"

namespace qsf::ai {

/// Finds the ways of its entity. While it is inactive the entity goes nowhere by itself; without one it goes as ever.
class QSF_API NavigationComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::ai::NavigationComponent"};
  explicit NavigationComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();
};

}
CAMP_TYPE_NONCOPYABLE(qsf::ai::NavigationComponent)
