#include "apps/tidemark/run/LogPrinter.h"

#include "apps/tidemark/session/Places.h"
#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <spdlog/logger.h>
#include <spdlog/sinks/ostream_sink.h>
#include <spdlog/sinks/stdout_color_sinks.h>

namespace tidemark::run {

using qsf::LogSystem;

struct LogPrinter::Output {
  Output(Format lineFormat, Sources lineSources, spdlog::sink_ptr sink)
      : logger("tidemark", std::move(sink)), format(lineFormat), sources(std::move(lineSources)) {
    logger.set_level(spdlog::level::trace);
    logger.set_pattern(format == Format::TEXT ? "%^%v%$" : "%v");
    logger.flush_on(spdlog::level::warn);
  }

  void write(const LogSystem::Record& record) {
    const std::string line = format == Format::TEXT ? toText(record) : toJson(record);
    logger.log(getLevel(record.severity), spdlog::string_view_t(line));
  }

  std::string toText(const LogSystem::Record& record) const {
    const auto origin = sources.origin();
    const std::string machine = sources.machine ? fmt::format("{} ", *sources.machine) : "";
    return fmt::format("{}[{:9.3f}] {:<7} {}{}{}", machine, sources.time().getSecondsAsDouble(),
                       LogSystem::getSeverityName(record.severity), toUtf8(record.message), origin ? "    " : "",
                       origin ? describe(*origin) : "");
  }

  std::string toJson(const LogSystem::Record& record) const {
    nlohmann::ordered_json line;
    if (sources.machine) line["machine"] = *sources.machine;
    line["time"] = sources.time().getSecondsAsDouble();
    line["severity"] = LogSystem::getSeverityName(record.severity);
    line["message"] = toUtf8(record.message);
    if (const auto origin = sources.origin()) {
      line["script"] = fileNameOf(origin->path);
      line["path"] = toUtf8(origin->path);
      line["line"] = origin->line;
      line["trigger"] = toUtf8(origin->trigger);
    }
    return line.dump();
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
  Sources sources;
};

LogPrinter::LogPrinter(LogSystem& log, Format format, Sources sources)
    : mLog(log), mOutput(std::make_unique<Output>(format, std::move(sources),
                                                  std::make_shared<spdlog::sinks::stderr_color_sink_st>())),
      mListener(log.addListener([this](const LogSystem::Record& record) { mOutput->write(record); })) {}

LogPrinter::LogPrinter(LogSystem& log, Format format, Sources sources, std::ostream& stream)
    : mLog(log), mOutput(std::make_unique<Output>(format, std::move(sources),
                                                  std::make_shared<spdlog::sinks::ostream_sink_st>(stream))),
      mListener(log.addListener([this](const LogSystem::Record& record) { mOutput->write(record); })) {}

LogPrinter::~LogPrinter() {
  mLog.removeListener(mListener);
  mOutput->logger.flush();
}

}
