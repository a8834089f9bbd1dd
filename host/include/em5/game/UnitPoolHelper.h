#pragma once
#include "qsf/Export.h"

#include <string>

namespace em5 {

/// Gives players other unit pools. Made on the spot.
class QSF_API UnitPoolHelper {
public:
  /// The pool of that name (see UnitPool::load). An unknown name, a faulty file, which is logged, and a missing game
  /// change nothing.
  void setUnitPoolForLocalPlayer(const std::string& name) const;
};

}
