#pragma once
#include "qsf/component/Component.h"

namespace qsf::game {

/// Marks an entity as one that a player may select.
class QSF_API SelectableComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::game::SelectableComponent"};
  explicit SelectableComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();
};

}
CAMP_TYPE_NONCOPYABLE(qsf::game::SelectableComponent)
