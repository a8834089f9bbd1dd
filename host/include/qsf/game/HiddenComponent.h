#pragma once
#include "qsf/component/Component.h"

namespace qsf::game {

/// Tells, and decides, whether its entity is drawn: the same as qsf::Entity::setHidden. A hidden entity keeps its place
/// and all else. Property "Hidden".
class QSF_API HiddenComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::game::HiddenComponent"};
  explicit HiddenComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  bool isHidden() const { return mHidden; }
  void setHidden(bool hidden);

private:
  bool mHidden = false;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::game::HiddenComponent)
