#pragma once
#include "qsf/Export.h"

#include <string>
#include <vector>

namespace qsf {

/// A hint for a mistyped name: ` (did you mean "A" or "B"?)` of the closest candidates, empty if none comes close.
QSF_API std::string nearNamesHint(const std::string& name, const std::vector<std::string>& candidates);

}
