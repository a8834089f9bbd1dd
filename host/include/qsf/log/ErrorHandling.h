#pragma once
#include "qsf/Export.h"

#include <stdexcept>
#include <string>

namespace qsf {

/// A fault that stands in the log already. Whoever catches it at the host's boundary counts it and adds no further line
/// of its severity.
class QSF_API ReportedError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// What the game does with faults of its own. Headless it never stops the process: a fault is logged.
class QSF_API ErrorHandling {
public:
  /// Logs the text as it stands, at severity 4. Level 1 means an error of one operation; headless, no other level makes
  /// a difference.
  static void printToLog(const std::string& text, int level);
  /// The same at level 1, then ends the operation.
  [[noreturn]] static void reportAndThrow(const std::string& text);
  /// Tells developers where an assertion failed, at severity 1. Returns whether a debugger should break here, which is
  /// never the case headless.
  static bool handleBreakOnAssert(const char* file, int line, const char* function);
};

}
