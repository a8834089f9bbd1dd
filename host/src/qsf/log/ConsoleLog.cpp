#include "qsf/log/ConsoleLog.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <spdlog/logger.h>
#include <spdlog/sinks/ostream_sink.h>
#include <spdlog/sinks/stdout_color_sinks.h>

namespace qsf {

struct ConsoleLog::Output {
  Output(Format logFormat, spdlog::sink_ptr sink, Clock logClock)
      : logger("tidemark", std::move(sink)), format(logFormat), clock(std::move(logClock)) {
    logger.set_level(spdlog::level::trace);
    logger.set_pattern(format == Format::TEXT ? "%^%v%$" : "%v");
    logger.flush_on(spdlog::level::warn);
  }

  void write(const LogSystem::Record& record) {
    const Time time = clock ? clock() : Time::ZERO;
    const std::string_view severity = LogSystem::getSeverityName(record.severity);
    if (format == Format::TEXT) {
      const std::string line = fmt::format("[{:9.3f}] {:<7} {}", time.getSecondsAsDouble(), severity, record.message);
      logger.log(getLevel(record.severity), spdlog::string_view_t(line));
      return;
    }
    nlohmann::ordered_json line;
    line["time"] = time.getSecondsAsDouble();
    line["severity"] = severity;
    line["message"] = record.message;
    // Scripts may be in code page 1252; a byte that isn't UTF-8 becomes the replacement character.
    const std::string text = line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    logger.log(getLevel(record.severity), spdlog::string_view_t(text));
  }

  static spdlog::level::level_enum getLevel(int severity) {
    switch (severity) {
    case LogSystem::TRACE:
      return spdlog::level::trace;
    case LogSystem::DEBUG:
      return spdlog::level::debug;
    case LogSystem::WARNING:
      return spdlog::level::warn;
    case LogSystem::ERROR:
      return spdlog::level::err;
    default:
      return spdlog::level::info; // lines without a severity look like information
    }
  }

  spdlog::logger logger;
  Format format;
  Clock clock;
};

namespace {

spdlog::sink_ptr makeSink(ConsoleLog::Target target) {
  if (target == ConsoleLog::Target::STANDARD_OUTPUT) return std::make_shared<spdlog::sinks::stdout_color_sink_st>();
  return std::make_shared<spdlog::sinks::stderr_color_sink_st>();
}

}

ConsoleLog::ConsoleLog(LogSystem& log, Format format, Target target, Clock clock)
    : mLog(log), mOutput(std::make_unique<Output>(format, makeSink(target), std::move(clock))),
      mListener(log.addListener([this](const LogSystem::Record& record) { mOutput->write(record); })) {}

ConsoleLog::ConsoleLog(LogSystem& log, Format format, std::ostream& stream, Clock clock)
    : mLog(log), mOutput(std::make_unique<Output>(format, std::make_shared<spdlog::sinks::ostream_sink_st>(stream),
                                                  std::move(clock))),
      mListener(log.addListener([this](const LogSystem::Record& record) { mOutput->write(record); })) {}

ConsoleLog::~ConsoleLog() {
  mLog.removeListener(mListener);
  mOutput->logger.flush();
}

}
