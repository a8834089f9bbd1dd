#pragma once
#include "qsf/base/Time.h"
#include "qsf/log/LogSystem.h"

#include <functional>
#include <iosfwd>
#include <memory>

namespace qsf {

/// Writes the log's lines to the terminal or a stream, each with its severity and the simulated time. Made by a program
/// for as long as it wants the output; must go before the log system does.
class QSF_API ConsoleLog {
public:
  enum class Format {
    TEXT,      ///< `[    1.250] WARNING message`; coloured on a terminal
    JSON_LINES ///< `{"time":1.25,"severity":"WARNING","message":"message"}`; always valid UTF-8
  };
  enum class Target { STANDARD_ERROR, STANDARD_OUTPUT };
  using Clock = std::function<Time()>;

  /// Without a clock the time is 0.
  ConsoleLog(LogSystem& log, Format format, Target target, Clock clock = {});
  /// The stream must outlive this object.
  ConsoleLog(LogSystem& log, Format format, std::ostream& stream, Clock clock = {});
  ~ConsoleLog();
  ConsoleLog(const ConsoleLog&) = delete;
  ConsoleLog& operator=(const ConsoleLog&) = delete;

private:
  struct Output;
  LogSystem& mLog;
  std::unique_ptr<Output> mOutput;
  std::size_t mListener;
};

}
