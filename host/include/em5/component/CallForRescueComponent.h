#pragma once
#include "qsf/component/Component.h"

namespace em5 {

/// A person that waits to be rescued from where it is. Property "CanRescuedByDLK": the ladder vehicle can fetch it.
class QSF_API CallForRescueComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::CallForRescueComponent"};
  explicit CallForRescueComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  bool canRescuedByDLK() const { return mCanRescuedByDLK; }
  void setCanRescuedByDLK(bool can) { mCanRescuedByDLK = can; }

private:
  bool mCanRescuedByDLK = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::CallForRescueComponent)
