#pragma once
#include "qsf/base/StringHash.h"

namespace em5 {

/// The job managers, in the order in which a frame runs them. A paused simulation skips the SIMULATION_* ones.
struct QSF_API Jobs {
  static constexpr qsf::StringHash SIMULATION_LOGIC{"em5::Jobs::SIMULATION_LOGIC"};
  static constexpr qsf::StringHash SIMULATION_FIRE{"em5::Jobs::SIMULATION_FIRE"};
  static constexpr qsf::StringHash ANIMATION_VEHICLE{"em5::Jobs::ANIMATION_VEHICLE"};
  static constexpr qsf::StringHash REALTIME_GUI_DEBUG{"em5::Jobs::REALTIME_GUI_DEBUG"};
};

}
