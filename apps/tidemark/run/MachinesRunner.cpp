// `tidemark run --peers`: a game of several machines on this computer, in step.
#include "apps/tidemark/ExitCode.h"
#include "apps/tidemark/OutputFile.h"
#include "apps/tidemark/peers/Machines.h"
#include "apps/tidemark/peers/StepTransport.h"
#include "apps/tidemark/platform/Platform.h"
#include "apps/tidemark/platform/WriteLimit.h"
#include "apps/tidemark/run/MachinesApart.h"
#include "apps/tidemark/run/Play.h"
#include "apps/tidemark/run/Runner.h"
#include "apps/tidemark/session/WritableFolders.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;

// One machine of several, in its own process: what it has come to goes to the process that runs them.
int playMachine(const RunOptions& options, const std::vector<std::string>& writable, unsigned int index,
                platform::BlockSocket& socket) {
  std::ostringstream log;
  const auto takeLines = [&log] { return std::exchange(log, std::ostringstream()).str(); };
  Seat seat;
  seat.player = index;
  seat.transport = std::make_unique<peers::StepTransport>(socket, takeLines);
  seat.log = &log;
  if (index > 0) seat.logFolder = fmt::format("machine{}", index); // all of them play in one working directory
  for (unsigned int other = 0; other < options.machines; ++other)
    if (other != index) seat.others.push_back(static_cast<std::uint8_t>(other));
  Json result;
  try {
    RunReport report;
    platform::callWithWriteLimit(writable, [&] { report = play(options, writable, seat); });
    result = {{"text", toText(report)}, {"report", toJson(report)}, {"faulty", isFaulty(report, options)}};
  } catch (const std::exception& fault) {
    result = {{"fault", fault.what()}};
  }
  peers::sendResult(socket, takeLines(), result.dump(-1, ' ', false, Json::error_handler_t::replace));
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
