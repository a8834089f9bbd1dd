#pragma once
#include "qsf/Export.h"

#include <string>

namespace qsf {

/// What the game does with faults of its own. Headless it never stops the process: a fault is logged.
class QSF_API ErrorHandling {
public:
  /// Logs the text as it stands, at severity 4. Level 1 means an error of one operation; headless, no other level makes
  /// a difference.
  static void printToLog(const std::string& text, int level);
  /// Tells developers where an assertion failed, at severity 1. Returns whether a debugger should break here, which is
  /// never the case headless.
  static bool handleBreakOnAssert(const char* file, int line, const char* function);
};

}
