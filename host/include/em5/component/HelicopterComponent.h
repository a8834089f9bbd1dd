#pragma once
#include "qsf/component/Component.h"

namespace em5 {

/// A helicopter, on the ground at first. Property "Flying".
class QSF_API HelicopterComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::HelicopterComponent"};
  explicit HelicopterComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  bool isFlying() const { return mFlying; }
  void setFlying(bool flying) { mFlying = flying; }

private:
  bool mFlying = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::HelicopterComponent)
