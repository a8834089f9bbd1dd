#include "apps/tidemark/run/Runner.h"

#include "apps/tidemark/ExitCode.h"
#include "apps/tidemark/platform/Platform.h"
#include "apps/tidemark/run/RunReport.h"
#include "apps/tidemark/session/Installation.h"
#include "apps/tidemark/session/ModuleAccess.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/log/ConsoleLog.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/map/Map.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <thread>

namespace tidemark::run {

namespace {

constexpr const char* DEFAULT_MAP = "em5/map/test/empty";

em5::HostSession::Options toHostOptions(const RunOptions& options) {
  em5::HostSession::Options host;
  host.kind =
      options.program == RunOptions::Program::EDITOR ? em5::HostSession::Kind::EDITOR : em5::HostSession::Kind::GAME;
  host.seed = options.seed;
  host.language = options.language;
  host.gameMode = options.gameMode;
  host.logThreshold = options.logLevel;
  return host;
}

// The map that the first project that names one wants. The file has been read by the host, so it is well-formed.
std::string findMap(const RunOptions& options) {
  if (!options.map.empty()) return options.map;
  for (const std::string& project : options.projects) {
    const std::string path = (std::filesystem::path(project) / "project.json").string();
    std::ifstream file(path, std::ios::binary);
    const auto root = nlohmann::json::parse(file, nullptr, false, true);
    if (!root.is_object() || !root.contains("map")) continue;
    if (!root["map"].is_string())
      throw std::runtime_error(
          fmt::format("{}: /map: a text is expected, the local name of a map such as \"{}\"", path, DEFAULT_MAP));
    return root["map"].get<std::string>();
  }
  return DEFAULT_MAP;
}

// Waits in --realtime until the wall clock has reached the frame's end.
class Pacer {
public:
  explicit Pacer(RunOptions::Pace pace) : mPace(pace) {}
  void waitFor(qsf::Time time) const {
    if (mPace == RunOptions::Pace::REAL_TIME)
      std::this_thread::sleep_until(mStart + std::chrono::microseconds(time.getMicroseconds()));
  }

private:
  RunOptions::Pace mPace;
  std::chrono::steady_clock::time_point mStart = std::chrono::steady_clock::now();
};

void playFrames(em5::HostSession& session, const RunOptions& options) {
  platform::catchInterrupts(platform::Requests::KEYBOARD);
  const qsf::Time tick = qsf::Time::fromSeconds(options.tick);
  const auto frames = static_cast<std::uint64_t>(std::llround(options.seconds / options.tick));
  const Pacer pacer(options.pace);
  for (std::uint64_t i = 0; i < frames && !platform::isInterrupted(); ++i) {
    session.runFrame(tick);
    pacer.waitFor(session.getTime());
  }
}

RunReport makeReport(const em5::HostSession& session) {
  RunReport report = collectReport(findTooling());
  report.map = session.getQsf().getMainMap().getLocalAssetName();
  report.seconds = session.getTime().getSecondsAsDouble();
  report.frames = session.getFrameCount();
  return report;
}

void writeReport(const std::string& path, const RunReport& report) {
  std::ofstream file(path, std::ios::binary);
  file << toJson(report);
  if (!file.flush()) throw std::runtime_error(fmt::format("--report: {} can't be written", path));
}

RunReport play(const RunOptions& options) {
  em5::HostSession session(toHostOptions(options));
  const auto format = options.logFormat == RunOptions::LogFormat::TEXT ? qsf::ConsoleLog::Format::TEXT
                                                                       : qsf::ConsoleLog::Format::JSON_LINES;
  qsf::ConsoleLog log(session.getQsf().getLogSystem(), format, qsf::ConsoleLog::Target::STANDARD_ERROR,
                      [&session] { return session.getTime(); });
  session.mountBaseProject(baseProjectDirectory());
  for (const std::string& project : options.projects)
    session.mountMod(project);
  const std::string map = findMap(options);
  session.startup();
  if (!session.loadPlugin(modulePath()))
    throw std::runtime_error("the module refuses to start; its log lines above tell why");
  session.startGame(map);
  playFrames(session, options);
  RunReport report = makeReport(session);
  session.endGame();
  report.faults = session.getQsf().getFaultCounter().getCount();
  report.lastFault = session.getQsf().getFaultCounter().getLastFault();
  return report;
}

}

int runProjects(const RunOptions& options) {
  try {
    const RunReport report = play(options);
    fmt::print("{}", toText(report));
    std::fflush(stdout);
    if (!options.report.empty()) writeReport(options.report, report);
    return report.faults > 0 ? EXIT_FAULT : EXIT_FINE;
  } catch (const std::exception& fault) {
    fmt::print(stderr, "tidemark run: {}\n", fault.what());
    return EXIT_CANNOT_LOAD;
  }
}

}
