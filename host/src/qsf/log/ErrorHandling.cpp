#include "qsf/log/ErrorHandling.h"
#include "qsf/log/LogSystem.h"

namespace qsf {

void ErrorHandling::printToLog(const std::string& text, int /*level*/) { logMessage(LogSystem::ERROR, text); }

void ErrorHandling::reportAndThrow(const std::string& text) {
  printToLog(text, 1);
  throw ReportedError(text);
}

bool ErrorHandling::handleBreakOnAssert(const char* file, int line, const char* function) {
  logMessage(LogSystem::DEBUG, std::string("Assertion failed in ") + (function ? function : "an unknown function") +
                                   " at " + (file ? file : "an unknown file") + ":" + std::to_string(line));
  return false;
}

}
