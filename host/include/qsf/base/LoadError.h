#pragma once
#include "qsf/Export.h"

#include <stdexcept>
#include <string>

namespace qsf {

/// An input file that cannot be used. The text names the file, the JSON path or line, what is wrong and what would be
/// right.
class QSF_API LoadError : public std::runtime_error {
public:
  LoadError(const std::string& file, const std::string& place, const std::string& fault)
      : std::runtime_error(file + (place.empty() ? "" : ": " + place) + ": " + fault) {}
};

}
