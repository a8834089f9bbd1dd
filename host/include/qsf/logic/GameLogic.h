#pragma once
#include "qsf/reflection/Object.h"

namespace qsf {

/// What an entity is or wants beside its components, as a role that others ask for. Classes are found by the hash of
/// their name in the class registry. Owned by the entity's GameLogicComponent.
class QSF_API GameLogic : public Object {
  CAMP_RTTI()
public:
  static void declareCamp();
};

}
CAMP_TYPE_NONCOPYABLE(qsf::GameLogic)
