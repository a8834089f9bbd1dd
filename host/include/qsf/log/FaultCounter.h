#pragma once
#include "qsf/Export.h"
#include "qsf/log/ErrorHandling.h"

#include <cstdint>
#include <exception>
#include <string>

namespace qsf {

/// Counts the faults that were caught at the host's boundary, so that a program can tell by its exit code that a
/// callback went wrong. Owned by Qsf; starts at zero with each host.
class QSF_API FaultCounter {
public:
  std::uint64_t getCount() const { return mCount; }
  /// Text of the newest fault as it was logged; empty if there was none.
  const std::string& getLastFault() const { return mLastFault; }
  void add(std::string fault);

private:
  std::uint64_t mCount = 0;
  std::string mLastFault;
};

/// Logs "Fault in <source>: <what>" at severity 4 and counts it at the running host.
QSF_API void reportFault(const std::string& source, const std::string& what);
/// The same for a fault that stands in the log already: counts it and tells its source at severity 1.
QSF_API void noteReportedFault(const std::string& source, const std::string& what);

/// Makes the call. Whatever it throws is reported with the text that `source()` gives, and costs this call only.
/// Returns whether the call came back without a fault. `source` is asked only in case of a fault.
template <class Call, class Source> bool callGuarded(Call&& call, Source&& source) {
  try {
    call();
    return true;
  } catch (const ReportedError& reported) {
    noteReportedFault(source(), reported.what());
  } catch (const std::exception& exception) {
    reportFault(source(), exception.what());
  } catch (...) {
    reportFault(source(), "unknown exception");
  }
  return false;
}

}
