#pragma once
#include "qsf/Export.h"

namespace qsf {
class Qsf;
}

namespace em5 {

/// Tells a host what the game adds to it: the steps of a frame (em5/base/Jobs.h), the names of the game's messages
/// (em5/base/Messages.h) and of injuries (em5/health/Injury.h). Called once, before anything registers a job.
/// em5::HostSession does it; a program that makes a bare qsf::Qsf and wants frames calls it itself.
QSF_API void addGameLayer(qsf::Qsf& host);

}
