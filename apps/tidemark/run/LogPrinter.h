#pragma once
#include "qsf/base/Time.h"
#include "qsf/log/LogSystem.h"

#include <functional>
#include <iosfwd>
#include <memory>

namespace tidemark::run {

/// Writes the log's lines to standard error or a stream, each with its severity and the simulated time. What it writes
/// is UTF-8, whatever scripts log. Made for as long as the output is wanted; must go before the log system does.
class LogPrinter {
public:
  enum class Format {
    TEXT,      ///< `[    1.250] WARNING message`; coloured on a terminal
    JSON_LINES ///< `{"time":1.25,"severity":"WARNING","message":"message"}`
  };
  using Clock = std::function<qsf::Time()>;

  /// To standard error.
  LogPrinter(qsf::LogSystem& log, Format format, Clock clock);
  /// The stream must outlive this object.
  LogPrinter(qsf::LogSystem& log, Format format, Clock clock, std::ostream& stream);
  ~LogPrinter();
  LogPrinter(const LogPrinter&) = delete;
  LogPrinter& operator=(const LogPrinter&) = delete;

private:
  struct Output;
  qsf::LogSystem& mLog;
  std::unique_ptr<Output> mOutput;
  std::size_t mListener;
};

}
