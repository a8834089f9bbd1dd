#pragma once
#include "qsf/component/Component.h"

namespace em5 {

/// A tree, standing at first. Property "Broken".
class QSF_API TreeComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::TreeComponent"};
  explicit TreeComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  bool isBroken() const { return mBroken; }
  void setBroken(bool broken) { mBroken = broken; }

private:
  bool mBroken = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::TreeComponent)
