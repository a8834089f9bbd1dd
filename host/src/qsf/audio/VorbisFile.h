#pragma once
#include "qsf/base/Time.h"

#include <string>

namespace qsf {

/// How long an Ogg Vorbis file plays. Throws a std::runtime_error that names the file and the fault.
Time readVorbisLength(const std::string& file);

}
