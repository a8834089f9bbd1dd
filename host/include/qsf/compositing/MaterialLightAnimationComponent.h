#pragma once
#include "qsf/component/Component.h"

namespace qsf::compositing {

/// Lets a lamp's material glow while the component is active.
class QSF_API MaterialLightAnimationComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::compositing::MaterialLightAnimationComponent"};
  explicit MaterialLightAnimationComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();
};

}
CAMP_TYPE_NONCOPYABLE(qsf::compositing::MaterialLightAnimationComponent)
