#pragma once
#include "qsf/Export.h"

namespace qsf {

/// Declares the host's own classes to CAMP and adds them to the class registry. Called by Qsf before anything uses
/// them; calling it again does no harm.
QSF_API void declareHostClasses();

}
