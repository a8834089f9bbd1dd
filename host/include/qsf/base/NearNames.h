#pragma once
#include "qsf/Export.h"

#include <string>
#include <vector>

namespace qsf {

/// The candidates that a mistyped name most likely means, the nearest first, three at most; empty if none comes close.
QSF_API std::vector<std::string> findNearNames(const std::string& name, const std::vector<std::string>& candidates);

/// A hint for a mistyped name: ` (did you mean "A" or "B"?)` of those; empty if none comes close.
QSF_API std::string nearNamesHint(const std::string& name, const std::vector<std::string>& candidates);

}
