#include "apps/tidemark/run/Runner.h"

#include "apps/tidemark/ExitCode.h"
#include "apps/tidemark/OutputFile.h"
#include "apps/tidemark/Subcommand.h"
#include "apps/tidemark/peers/Machines.h"
#include "apps/tidemark/peers/StepTransport.h"
#include "apps/tidemark/platform/Platform.h"
#include "apps/tidemark/platform/WriteLimit.h"
#include "apps/tidemark/run/LogPrinter.h"
#include "apps/tidemark/run/MachinesApart.h"
#include "apps/tidemark/run/RunReport.h"
#include "apps/tidemark/session/Installation.h"
#include "apps/tidemark/session/Languages.h"
#include "apps/tidemark/session/Maps.h"
#include "apps/tidemark/session/ModuleAccess.h"
#include "apps/tidemark/session/WritableFolders.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/map/Map.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <sstream>
#include <thread>
#include <utility>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;

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

// The map that the first project that names one wants.
std::string findMap(const RunOptions& options) {
  if (!options.map.empty()) return options.map;
  for (const std::string& project : options.projects)
    if (auto map = findMapOfProject(project)) return std::move(*map);
  return DEFAULT_MAP;
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

void playFrames(em5::HostSession& session, const RunOptions& options) {
  platform::catchInterrupts();
  const qsf::Time tick = qsf::Time::fromSeconds(options.tick);
  const auto frames = static_cast<std::uint64_t>(std::llround(options.seconds / options.tick));
  const Pacer pacer(options.pace);
  for (std::uint64_t i = 0; i < frames && !platform::isInterrupted(); ++i) {
    session.runFrame(tick);
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
  report.editorSteps = collectEditorSteps();
  return report;
}

// Scripts of a list that can't be read would be missing from the run without a word.
void requireConfigurations(const script::tooling::Tooling& tooling) {
  if (const auto unreadable = tooling.getUnreadableConfigurations(); !unreadable.empty())
    throw std::runtime_error(fmt::format("{}", fmt::join(unreadable, "\n")));
}

/// Which machine of how many plays in this process.
struct Machine {
  unsigned int index = 0;
  platform::BlockSocket* socket = nullptr; ///< null: the only one
  std::ostringstream log;                  ///< where a machine of several writes

  std::string takeLines() { return std::exchange(log, std::ostringstream()).str(); }
};

std::unique_ptr<LogPrinter> makeLogPrinter(const RunOptions& options, em5::HostSession& session,
                                           const LoadedModule& module, Machine& machine) {
  const auto format =
      options.logFormat == RunOptions::LogFormat::TEXT ? LogPrinter::Format::TEXT : LogPrinter::Format::JSON_LINES;
  LogPrinter::Sources sources{[&session] { return session.getTime(); },
                              [&module] { return module.tooling().getOrigin(); }};
  qsf::LogSystem& log = session.getQsf().getLogSystem();
  if (!machine.socket) return std::make_unique<LogPrinter>(log, format, std::move(sources));
  sources.machine = machine.index;
  return std::make_unique<LogPrinter>(log, format, std::move(sources), machine.log);
}

void joinOthers(const RunOptions& options, em5::HostSession& session, Machine& machine) {
  std::vector<std::uint8_t> others;
  for (unsigned int other = 0; other < options.machines; ++other)
    if (other != machine.index) others.push_back(static_cast<std::uint8_t>(other));
  session.createSession(
      std::make_unique<peers::StepTransport>(*machine.socket, [&machine] { return machine.takeLines(); }), others);
}

RunReport play(const RunOptions& options, const std::vector<std::string>& writable, Machine& machine) {
  const LoadedModule module;
  module.tooling().switchHints(options.hints);
  module.tooling().switchReferenceFiles(options.writeDocs);
  em5::HostSession::Options host = toHostOptions(options);
  host.players = options.machines;
  host.localPlayer = machine.index;
  em5::HostSession session(host);
  limitHostWrites(writable);
  const auto log = makeLogPrinter(options, session, module, machine);
  session.mountBaseProject(baseProjectDirectory());
  for (const std::string& project : options.projects)
    session.mountMod(project);
  const std::string map = findMap(options);
  requireMap(session.getQsf().getProjectManager(), map);
  requireLanguage(session.getQsf().getProjectManager(), options.language);
  // What scripts name by a path lies in the project, wherever the program was started.
  std::filesystem::current_path(options.projects.front());
  session.startup();
  if (!session.loadPlugin(modulePath()))
    throw std::runtime_error("the module refuses to start; its log lines above tell why");
  requireConfigurations(module.tooling());
  if (machine.socket) joinOthers(options, session, machine);
  session.startGame(map);
  playFrames(session, options);
  RunReport report = makeReport(session, module.tooling());
  session.endGame();
  report.faults = session.getQsf().getFaultCounter().getCount();
  report.lastFault = session.getQsf().getFaultCounter().getLastFault();
  return report;
}

bool isFaulty(const RunReport& report, const RunOptions& options) {
  return report.faults > 0 || !report.droppedLines.empty() || (options.strict && !report.hints.empty());
}

// One machine of several, in its own process: what it has come to goes to the process that runs them.
int playMachine(const RunOptions& options, const std::vector<std::string>& writable, unsigned int index,
                platform::BlockSocket& socket) {
  Machine machine;
  machine.index = index;
  machine.socket = &socket;
  Json result;
  try {
    RunReport report;
    platform::callWithWriteLimit(writable, [&] { report = play(options, writable, machine); });
    result = {{"text", toText(report)}, {"report", toJson(report)}, {"faulty", isFaulty(report, options)}};
  } catch (const std::exception& fault) {
    result = {{"fault", fault.what()}};
  }
  peers::sendResult(socket, machine.takeLines(), result.dump(-1, ' ', false, Json::error_handler_t::replace));
  return 0;
}

std::string nameOf(unsigned int machine) {
  return machine == 0 ? "machine 0, the host" : fmt::format("machine {}, player {}", machine, machine);
}

// The machines' last words. Throws for a machine that has none, or that could not play.
std::vector<Json> readResults(const std::vector<peers::MachineEnd>& ends) {
  std::vector<Json> results;
  for (unsigned int i = 0; i < ends.size(); ++i) {
    if (!ends[i].result)
      throw std::runtime_error(fmt::format(
          "{} {}", nameOf(i),
          ends[i].status.signal != 0 ? fmt::format("crashed with {}", ends[i].status.signalName) : "ended too early"));
    results.push_back(Json::parse(*ends[i].result));
    if (results.back().contains("fault")) throw std::runtime_error(results.back().at("fault").get<std::string>());
  }
  return results;
}

int runMachines(const RunOptions& options) {
  OutputFile file("--report", options.report);
  const std::vector<std::string> writable = writableFolders(options.projects.front(), options.allowWrite);
  platform::catchInterrupts();
  const auto ends = peers::runMachines(
      {options.machines, options.delay, options.loss, options.seed}, [](unsigned int) { return std::string(); },
      [&](unsigned int index, platform::BlockSocket& socket) { return playMachine(options, writable, index, socket); },
      [](unsigned int, const std::string& lines) { fmt::print(stderr, "{}", lines); });
  const std::vector<Json> results = readResults(ends);
  std::vector<Json> reports;
  bool faulty = false;
  for (const Json& result : results) {
    reports.push_back(Json::parse(result.at("report").get<std::string>()));
    faulty = faulty || result.at("faulty").get<bool>();
  }
  const std::vector<Apart> apart = findMachinesApart(reports);
  if (!file.isStandardOutput()) {
    for (unsigned int i = 0; i < results.size(); ++i)
      fmt::print("\n{}\n{}", nameOf(i), results[i].at("text").get<std::string>());
    fmt::print("{}", toText(apart));
  }
  if (file.isWanted())
    file.write(
        Json{{"machines", reports}, {"apart", toJson(apart)}}.dump(2, ' ', false, Json::error_handler_t::replace) +
        "\n");
  return faulty ? EXIT_FAULT : EXIT_FINE;
}

}

int runProjects(const RunOptions& options) {
  if (options.machines > 1) return runMachines(options);
  OutputFile file("--report", options.report);
  const std::vector<std::string> writable = writableFolders(options.projects.front(), options.allowWrite);
  RunReport report;
  Machine machine;
  platform::callWithWriteLimit(writable, [&] { report = play(options, writable, machine); });
  if (!file.isStandardOutput()) fmt::print("{}", toText(report));
  if (file.isWanted()) file.write(toJson(report));
  return isFaulty(report, options) ? EXIT_FAULT : EXIT_FINE;
}

}
