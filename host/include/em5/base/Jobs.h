#pragma once
#include "qsf/base/StringHash.h"

/// The steps of a frame, in their order: JOB(NAME, KIND), KIND being one of qsf::JobManagers::Kind. A line here is all
/// that a step needs.
#define EM5_JOBS(JOB)                                                                                                  \
  JOB(SIMULATION_LOGIC, SIMULATION) /* the world's components, most of the game, scripts */                            \
  JOB(SIMULATION_FIRE, SIMULATION)                                                                                     \
  JOB(ANIMATION_VEHICLE, REALTIME)                                                                                     \
  JOB(REALTIME_GUI_DEBUG, REALTIME)

namespace em5 {

/// Names of the job managers; each is the hash of its name as it is spelled, `em5::Jobs::SIMULATION_LOGIC`.
struct QSF_API Jobs {
#define EM5_JOB(NAME, KIND) static constexpr qsf::StringHash NAME{"em5::Jobs::" #NAME};
  EM5_JOBS(EM5_JOB)
#undef EM5_JOB
};

}
