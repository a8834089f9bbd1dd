#pragma once
#include "qsf/Export.h"

#include <string>

namespace qsf {

/// What the game does with faults of its own. Headless it never stops the process: a fault is logged.
class QSF_API ErrorHandling {
public:
  /// Logs the text at severity 4. Level 1 means an error of one operation; the level is kept in the line for tools.
  static void printToLog(const std::string& text, int level);
  /// Tells where an assertion failed. Returns whether a debugger should break here, which is never the case headless.
  static bool handleBreakOnAssert(const char* file, int line, const char* function);
};

}
