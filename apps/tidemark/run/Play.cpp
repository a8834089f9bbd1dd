#include "apps/tidemark/run/Play.h"

#include "apps/tidemark/Subcommand.h"
#include "apps/tidemark/platform/Platform.h"
#include "apps/tidemark/run/LogPrinter.h"
#include "apps/tidemark/session/Installation.h"
#include "apps/tidemark/session/Languages.h"
#include "apps/tidemark/session/Maps.h"
#include "apps/tidemark/session/ModuleAccess.h"
#include "apps/tidemark/session/WritableFolders.h"

#include "em5/game/HostSession.h"
#include "em5/settings/GameSettingsGroup.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/map/Map.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <memory>
#include <set>
#include <thread>
#include <utility>

namespace tidemark::run {

std::string findMap(const RunOptions& options) {
  if (!options.map.empty()) return options.map;
  for (const std::string& project : options.projects)
    if (auto map = findMapOfProject(project)) return std::move(*map);
  return DEFAULT_MAP;
}

namespace {

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

void requireLanguage(const qsf::ProjectManager& projects, const std::string& language) {
  const std::vector<std::string> languages = findLanguages(projects);
  if (std::find(languages.begin(), languages.end(), language) == languages.end())
    throw UsageError(
        fmt::format("--language: no project has texts in '{}'; there are {}", language, fmt::join(languages, ", ")));
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

// Takes the screens of the moments that are asked for, and of the end.
class ScreenTaker {
public:
  explicit ScreenTaker(const RunOptions& options) : mWanted(!options.screens.empty()) {
    for (const double seconds : options.screensAt)
      mFrames.insert(static_cast<std::uint64_t>(std::llround(seconds / options.tick)));
  }
  void look(const em5::HostSession& session) {
    if (mWanted && mFrames.contains(session.getFrameCount())) take(session);
  }
  std::vector<screens::Moment> finish(const em5::HostSession& session) {
    if (mWanted && (mMoments.empty() || mMoments.back().seconds != session.getTime().getSecondsAsDouble()))
      take(session);
    return std::move(mMoments);
  }

private:
  void take(const em5::HostSession& session) {
    mMoments.push_back(screens::takeScreens(session.getTime().getSecondsAsDouble()));
  }

  bool mWanted;
  std::set<std::uint64_t> mFrames;
  std::vector<screens::Moment> mMoments;
};

void playFrames(em5::HostSession& session, const RunOptions& options, ScreenTaker& screens) {
  platform::catchInterrupts();
  const qsf::Time tick = qsf::Time::fromSeconds(options.tick);
  const auto frames = static_cast<std::uint64_t>(std::llround(options.seconds / options.tick));
  // Others are there in real time only.
  const Pacer pacer(options.serve || options.join ? RunOptions::Pace::REAL_TIME : options.pace);
  screens.look(session);
  for (std::uint64_t i = 0; i < frames && !platform::isInterrupted(); ++i) {
    session.runFrame(tick);
    screens.look(session);
    pacer.waitFor(session.getTime());
  }
}

RunReport makeReport(const em5::HostSession& session, const script::tooling::Tooling& tooling) {
  RunReport report = collectReport(tooling);
  report.map = session.getQsf().getMainMap().getLocalAssetName();
  report.seconds = session.getTime().getSecondsAsDouble();
  report.frames = session.getFrameCount();
  report.events = collectEvents();
  report.world = collectWorld(session.getQsf());
  report.game = collectGame(session.getQsf());
  report.editorSteps = collectEditorSteps();
  return report;
}

// Scripts of a list that can't be read would be missing from the run without a word.
void requireConfigurations(const script::tooling::Tooling& tooling) {
  if (const auto unreadable = tooling.getUnreadableConfigurations(); !unreadable.empty())
    throw std::runtime_error(fmt::format("{}", fmt::join(unreadable, "\n")));
}

std::unique_ptr<LogPrinter> makeLogPrinter(const RunOptions& options, em5::HostSession& session,
                                           const LoadedModule& module, const Seat& seat) {
  const auto format =
      options.logFormat == RunOptions::LogFormat::TEXT ? LogPrinter::Format::TEXT : LogPrinter::Format::JSON_LINES;
  LogPrinter::Sources sources{[&session] { return session.getTime(); },
                              [&module] { return module.tooling().getOrigin(); }};
  qsf::LogSystem& log = session.getQsf().getLogSystem();
  if (!seat.log) return std::make_unique<LogPrinter>(log, format, std::move(sources));
  sources.machine = seat.player;
  return std::make_unique<LogPrinter>(log, format, std::move(sources), *seat.log);
}

}

RunReport play(const RunOptions& options, const std::vector<std::string>& writable, Seat& seat) {
  const LoadedModule module;
  module.tooling().switchHints(options.hints);
  module.tooling().switchReferenceFiles(options.writeDocs);
  em5::HostSession::Options host = toHostOptions(options);
  host.players = std::max(1u, options.machines);
  host.localPlayer = seat.player;
  em5::HostSession session(host);
  qsf::UniqueInstance<em5::GameSettingsGroup>()->setMultiplayUpdatesPerSecond(options.syncRate);
  limitHostWrites(writable);
  const auto log = makeLogPrinter(options, session, module, seat);
  session.mountBaseProject(baseProjectDirectory());
  for (const std::string& project : options.projects)
    session.mountMod(project);
  const std::string map = seat.map.empty() ? findMap(options) : seat.map;
  requireMap(session.getQsf().getProjectManager(), map);
  requireLanguage(session.getQsf().getProjectManager(), options.language);
  // What scripts name by a path lies in the project, wherever the program was started.
  std::filesystem::current_path(options.projects.front());
  session.startup();
  if (!session.loadPlugin(modulePath()))
    throw std::runtime_error("the module refuses to start; its log lines above tell why");
  requireConfigurations(module.tooling());
  if (!seat.logFolder.empty()) module.tooling().setPlayerLogFolder(seat.logFolder);
  if (seat.transport) session.createSession(std::move(seat.transport), seat.others);
  session.startGame(map);
  ScreenTaker screens(options);
  playFrames(session, options, screens);
  RunReport report = makeReport(session, module.tooling());
  report.screens = screens.finish(session);
  session.endGame();
  report.faults = session.getQsf().getFaultCounter().getCount();
  report.lastFault = session.getQsf().getFaultCounter().getLastFault();
  return report;
}

bool isFaulty(const RunReport& report, const RunOptions& options) {
  return report.faults > 0 || !report.droppedLines.empty() || (options.strict && !report.hints.empty());
}

}
