#include "qsf/log/FaultCounter.h"
#include "qsf/Qsf.h"
#include "qsf/log/LogSystem.h"

namespace qsf {

void FaultCounter::add(std::string fault) {
  ++mCount;
  mLastFault = std::move(fault);
}

void reportFault(const std::string& source, const std::string& what) {
  const std::string text = "Fault in " + source + ": " + what;
  if (const Qsf* host = Qsf::instance()) host->getFaultCounter().add(text);
  logMessage(LogSystem::ERROR, text);
}

void noteReportedFault(const std::string& source, const std::string& what) {
  if (const Qsf* host = Qsf::instance()) host->getFaultCounter().add("Fault in " + source + ": " + what);
  logMessage(LogSystem::DEBUG, "The fault above has ended " + source);
}

}
