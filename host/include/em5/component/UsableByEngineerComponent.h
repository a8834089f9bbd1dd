#pragma once
#include "qsf/component/Component.h"

namespace em5 {

/// Marks what an engineer can repair or use.
class QSF_API UsableByEngineerComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::UsableByEngineerComponent"};
  explicit UsableByEngineerComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();
};

}
CAMP_TYPE_NONCOPYABLE(em5::UsableByEngineerComponent)
