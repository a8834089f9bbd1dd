#pragma once
#include "game_plugin/tooling/Tooling.h"
#include "qsf/base/Time.h"
#include "qsf/log/LogSystem.h"

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>

namespace tidemark::run {

/// Writes the log's lines to standard error or a stream, each with its severity, the simulated time and, for a line
/// that comes from a script, its place there. What it writes is UTF-8, whatever scripts log. Made for as long as the
/// output is wanted; must go before the log system does.
class LogPrinter {
public:
  enum class Format {
    TEXT,      ///< `[    1.250] WARNING message    day.script:12 Morning`; coloured on a terminal
    JSON_LINES ///< `{"time":1.25,"severity":"WARNING","message":"message","script":"day.script","line":12,...}`
  };
  /// What is asked when a line comes. The place is nothing for a line that comes from no script.
  struct Sources {
    std::function<qsf::Time()> time;
    std::function<std::optional<script::tooling::Origin>()> origin;
    /// Of a game of several machines: the one that logs.
    std::optional<unsigned int> machine = std::nullopt;
  };

  /// To standard error.
  LogPrinter(qsf::LogSystem& log, Format format, Sources sources);
  /// The stream must outlive this object.
  LogPrinter(qsf::LogSystem& log, Format format, Sources sources, std::ostream& stream);
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
