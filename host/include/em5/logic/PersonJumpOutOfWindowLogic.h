#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/logic/GameLogic.h"

namespace em5 {

/// Marks a person that stands at a window, or as high, and jumps if nobody comes in time.
class QSF_API PersonJumpOutOfWindowLogic : public qsf::GameLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::PersonJumpOutOfWindowLogic"};
  static void declareCamp();
};

}
CAMP_TYPE_NONCOPYABLE(em5::PersonJumpOutOfWindowLogic)
