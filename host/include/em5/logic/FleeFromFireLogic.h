#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/logic/GameLogic.h"

namespace em5 {

/// Marks a person that runs from fire.
class QSF_API FleeFromFireLogic : public qsf::GameLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::FleeFromFireLogic"};
  static void declareCamp();
};

}
CAMP_TYPE_NONCOPYABLE(em5::FleeFromFireLogic)
