#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/logic/GameLogic.h"

namespace em5 {

/// Marks a person as a firefighter, one who has a suit and a mask to change.
class QSF_API FiremanLogic : public qsf::GameLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::FiremanLogic"};
  static void declareCamp();
};

}
CAMP_TYPE_NONCOPYABLE(em5::FiremanLogic)
