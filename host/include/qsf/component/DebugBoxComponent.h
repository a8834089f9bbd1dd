#pragma once
#include "qsf/component/Component.h"

namespace qsf {

/// A box in the editor's view that stands for an entity which has no mesh to be seen.
class QSF_API DebugBoxComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::DebugBoxComponent"};
  explicit DebugBoxComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();
};

}
CAMP_TYPE_NONCOPYABLE(qsf::DebugBoxComponent)
